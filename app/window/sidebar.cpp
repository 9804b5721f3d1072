#include "app/window/sidebar.h"

#include "app/window/organization_mark.h"
#include "app/window/sidebar_delegate.h"
#include "app/window/sidebar_model.h"
#include "desktop/type.h"

#include <QListView>
#include <QPixmap>
#include <QVBoxLayout>

#include <cmath>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;

constexpr double list_margin = 10;
constexpr double logo_side = 38; ///< as the mark shows it

QListView* make_list(QWidget* parent)
{
    auto* list = new QListView(parent);
    list->setObjectName(QStringLiteral("sidebar"));
    list->setAccessibleName(QStringLiteral("Pages"));
    list->setFrameShape(QFrame::NoFrame);
    list->viewport()->setAutoFillBackground(false);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setResizeMode(QListView::Adjust);
    list->setMouseTracking(true);
    return list;
}

} // namespace

Sidebar::Sidebar(QWidget* parent)
    : Surface(Role::sidebar, parent), mark_(new OrganizationMark(this)), list_(make_list(this)),
      model_(new SidebarModel(this)), delegate_(new SidebarDelegate(this))
{
    list_->setModel(model_);
    list_->setItemDelegate(delegate_);
    auto* rows = new QVBoxLayout;
    rows->setContentsMargins(scaled(list_margin), 0, scaled(list_margin), scaled(list_margin));
    rows->addWidget(list_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(mark_);
    column->addLayout(rows, 1);
    setFocusProxy(list_);
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& now) {
        if (now.isValid() && model_->line(now.row()))
            Q_EMIT chosen(model_->line(now.row())->item);
    });
}

void Sidebar::show_presentation(const SidebarPresentation& presentation)
{
    mark_->set_name(QString::fromStdString(presentation.organization));
    model_->set_rows(presentation.rows);
}

void Sidebar::set_logo(const QByteArray& png)
{
    QPixmap logo;
    const int side = static_cast<int>(std::lround(scaled(logo_side) * devicePixelRatioF()));
    if (!png.isEmpty() && logo.loadFromData(png, "PNG"))
        logo = logo.scaled(side, side, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    mark_->set_logo(logo);
}

void Sidebar::select(SidebarItem item)
{
    list_->setCurrentIndex(model_->index_of(item));
}

void Sidebar::set_strip(bool strip)
{
    delegate_->set_strip(strip);
    mark_->set_logo_only(strip);
    Q_EMIT delegate_->sizeHintChanged({});
}

} // namespace quillfern::app
