#include "app/pages/funders_page.h"

#include "app/pages/funder_list.h"
#include "app/pages/funder_record_view.h"
#include "desktop/empty_state.h"
#include "desktop/page_header.h"
#include "desktop/page_scroll.h"
#include "desktop/qt_text.h"
#include "desktop/surface.h"
#include "desktop/table_view.h"
#include "desktop/type.h"

#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::to_qt;

constexpr double list_share = 0.333;
constexpr double least_list = 300;
constexpr double most_list = 396;

} // namespace

FundersPage::FundersPage(WindowModel& model, QWidget* parent)
    : Page(parent), model_(model), header_(new desktop::PageHeader(QStringLiteral("Funders"), this)),
      body_(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("fundersPage"));
    body_->addWidget(make_body());
    body_->addWidget(new desktop::EmptyState(QStringLiteral("funders"), QStringLiteral("No funders yet"),
        QStringLiteral("Whom you ask, what they gave and when to ask again stands here."), body_));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header_);
    column->addWidget(body_, 1);
    setFocusProxy(list_);
    connect(list_, &FunderList::funder_chosen, this,
        [this](const Uuid& funder) { model_.edit([&funder](WindowState& state) { state.selectedFunder = funder; }); });
    connect(&record_->grants(), &desktop::TableView::wants_in_sight, scroll_,
        [this](const QRect& row) { scroll_->bring_into_sight(record_->grants(), row); });
}

QWidget* FundersPage::make_body()
{
    auto* both = new QWidget(body_);
    list_card_ = new desktop::Card(both);
    list_ = new FunderList(list_card_);
    auto* inside = new QVBoxLayout(list_card_);
    inside->setContentsMargins(1, 1, 1, scaled(10));
    inside->addWidget(list_);
    auto* left = new QVBoxLayout;
    left->setContentsMargins(scaled(28), 0, 0, scaled(22));
    left->addWidget(list_card_);
    scroll_ = new desktop::PageScroll(both);
    record_ = new FunderRecordView(scroll_);
    QMargins margins = scroll_->column()->contentsMargins();
    margins.setLeft(scaled(20));
    scroll_->column()->setContentsMargins(margins);
    scroll_->column()->addWidget(record_);
    scroll_->column()->addStretch();
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addLayout(left);
    row->addWidget(scroll_, 1);
    return both;
}

void FundersPage::show_file(const grants::GrantFile& file, const WindowState& state)
{
    const FundersPresentation presentation = funders_presentation(file, state.today, state.selectedFunder);
    header_->set_facts({{to_qt(presentation.facts), Role::text2}});
    body_->setCurrentIndex(presentation.record ? 0 : 1);
    if (!presentation.record)
        return list_->show_lines({}, {});
    list_->show_lines(presentation.lines, presentation.record->id);
    record_->show_record(*presentation.record);
}

void FundersPage::resizeEvent(QResizeEvent* event)
{
    Page::resizeEvent(event);
    list_card_->setFixedWidth(
        std::clamp(static_cast<int>(width() * list_share), scaled(least_list), scaled(most_list)));
}

} // namespace quillfern::app
