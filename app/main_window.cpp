#include "app/main_window.h"

#include "app/all_grants_page.h"
#include "app/application.h"
#include "app/award_money.h"
#include "app/file_export.h"
#include "app/fiscal_year_choice.h"
#include "app/funders_page.h"
#include "app/pipeline_page.h"
#include "app/sidebar.h"
#include "app/today_page.h"
#include "app/window_layout.h"
#include "app/window_tool_bar.h"
#include "desktop/menu_builder.h"
#include "desktop/surface.h"
#include "desktop/toast.h"
#include "desktop/type.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLineEdit>
#include <QSettings>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>

#include <array>
#include <utility>

namespace quillfern::app {
namespace {

using desktop::scaled;

constexpr double sidebar_width = 247; ///< and the line beside it
constexpr double least_sidebar_width = 200;
constexpr double most_sidebar_width = 360;
constexpr double strip_width = 60;
constexpr int window_offset = 28; ///< between the corners of two windows that open one after the other
const QString geometry_key = QStringLiteral("window/geometry");
const QString sidebar_key = QStringLiteral("window/sidebarOpen");
const QString sidebar_width_key = QStringLiteral("window/sidebarWidth");

WindowState first_state(const Document& document, const grants::Day& today)
{
    WindowState state;
    state.today = today;
    state.fiscalYear = fiscal_calendar(document.file().org).year_of(today);
    return state;
}

/// A logo that cannot be read is none: the window must open all the same.
QByteArray logo_bytes(const grants::OrgPackage& package)
{
    if (!package.logo)
        return {};
    const auto bytes = package.logo->read();
    return bytes ? QByteArray::fromStdString(**bytes) : QByteArray();
}

} // namespace

MainWindow::MainWindow(Application& application, std::unique_ptr<Document> document)
    : AppWindow(application), document_(std::move(document)),
      model_(first_state(*document_, application.day_watch().today())), sidebar_width_(scaled(sidebar_width)),
      splitter_(new QSplitter(this)), tool_bar_(new WindowToolBar(menus(), this)), sidebar_(new Sidebar(this)),
      pages_(new QStackedWidget(this)), today_page_(new TodayPage(pages_))
{
    setObjectName(QStringLiteral("documentWindow"));
    lay_out();
    update_commands({true});
    tool_bar_->update_buttons();
    connect(&application.day_watch(), &DayWatch::day_changed, this,
        [this](const grants::Day& today) { model_.edit([&](WindowState& state) { state.today = today; }); });
    connect(&model_, &WindowModel::changed, this, &MainWindow::take_state);
    connect(sidebar_, &Sidebar::chosen, this, &MainWindow::show_page);
    connect_tool_bar();
    const auto on_key = [this](const QKeySequence& keys, int direction) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, direction] { cycle_panes(direction); });
    };
    on_key(Qt::Key_F6, 1);
    on_key(Qt::SHIFT | Qt::Key_F6, -1);
    redraw();
    restore_placement();
    arrange();
    today_page_->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::lay_out()
{
    addToolBar(tool_bar_);
    auto* content = new desktop::Surface(desktop::Role::page, this);
    auto* row = new QHBoxLayout(content);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(splitter_);
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(sidebar_);
    splitter_->addWidget(pages_);
    splitter_->setStretchFactor(1, 1);
    connect(splitter_, &QSplitter::splitterMoved, this, [this] {
        if (sidebar_->width() >= scaled(least_sidebar_width)) // not the strip, which cannot be dragged
            sidebar_width_ = sidebar_->width();
    });
    pages_->addWidget(today_page_);
    setCentralWidget(content);
    setMinimumSize(960, 600);
}

void MainWindow::connect_tool_bar()
{
    connect(tool_bar_, &WindowToolBar::fiscal_year_chosen, this,
        [this](qint64 year) { model_.edit([year](WindowState& state) { state.fiscalYear = year; }); });
    connect(tool_bar_, &WindowToolBar::search_changed, this, [this](const QString& text) {
        model_.edit([&text](WindowState& state) {
            state.search = text.toStdString();
            if (!text.isEmpty())
                state.selection = SidebarItem::grants;
        });
    });
    connect(tool_bar_, &WindowToolBar::search_left, this, &MainWindow::focus_page);
}

void MainWindow::redraw()
{
    const WindowState& state = model_.state();
    setWindowTitle(document_->title() + QStringLiteral("[*] — Quillfern"));
    sidebar_->set_logo(logo_bytes(document_->package()));
    sidebar_->show_presentation(sidebar_presentation(document_->file(), state.today));
    show_state();
}

void MainWindow::take_state(const WindowState& before, const WindowState& after)
{
    if (before.today != after.today)
        return redraw();
    const bool keyboard_on_page = focusWidget() && pages_->isAncestorOf(focusWidget());
    show_state();
    if (before.selection != after.selection && keyboard_on_page)
        focus_page();
}

void MainWindow::show_state()
{
    const WindowState& state = model_.state();
    sidebar_->select(state.selection);
    tool_bar_->show_fiscal_years(fiscal_year_choice(document_->file(), state.today, state.fiscalYear));
    tool_bar_->show_search(QString::fromStdString(state.search));
    pages_->setCurrentWidget(show_selected_page());
}

QWidget* MainWindow::show_selected_page()
{
    const WindowState& state = model_.state();
    const grants::GrantFile& file = document_->file();
    if (Page* page = page_of(state.selection)) {
        page->show_file(file, state);
        return page;
    }
    today_page_->show_presentation(today_presentation(file, state.today));
    today_page_->show_award_money(award_money(file, state.today, state.fiscalYear));
    return today_page_;
}

/// Null for the Today page, which is no page like the others yet.
Page* MainWindow::page_of(SidebarItem item)
{
    if (const auto made = other_pages_.find(item); made != other_pages_.end())
        return made->second;
    Page* page = nullptr;
    if (item == SidebarItem::pipeline)
        page = new PipelinePage(model_, pages_);
    else if (item == SidebarItem::grants)
        page = new AllGrantsPage(model_, pages_);
    else if (item == SidebarItem::funders)
        page = new FundersPage(model_, pages_);
    else
        return nullptr;
    pages_->addWidget(page);
    return other_pages_[item] = page;
}

void MainWindow::focus_page()
{
    pages_->currentWidget()->setFocus(Qt::OtherFocusReason);
}

void MainWindow::find()
{
    show_page(SidebarItem::grants);
    tool_bar_->focus_search();
}

void MainWindow::export_file(ExportKind kind)
{
    start_export(document_->file(), kind, this,
        [this](const QString& name) { show_toast(QStringLiteral("Saved “%1”.").arg(name)); });
}

void MainWindow::show_toast(const QString& text)
{
    if (!toast_)
        toast_ = new desktop::Toast(pages_);
    toast_->show_message(text);
}

void MainWindow::show_page(SidebarItem page)
{
    if (destination(page).built)
        model_.edit([page](WindowState& state) { state.selection = page; });
}

void MainWindow::toggle_sidebar()
{
    const bool open = window_layout(width(), sidebar_open_).sidebar == SidebarForm::full;
    sidebar_open_ = !open;
    arrange();
}

void MainWindow::arrange()
{
    const WindowLayout layout = window_layout(width(), sidebar_open_);
    const bool strip = layout.sidebar == SidebarForm::strip;
    sidebar_->setVisible(layout.sidebar != SidebarForm::hidden);
    sidebar_->set_strip(strip);
    sidebar_->setMinimumWidth(scaled(strip ? strip_width : least_sidebar_width));
    sidebar_->setMaximumWidth(scaled(strip ? strip_width : most_sidebar_width));
    const int sidebar = strip ? scaled(strip_width) : sidebar_width_;
    splitter_->setSizes({sidebar, width() - sidebar});
    today_page_->set_right_column(scaled(layout.rightColumn));
}

void MainWindow::come_forward()
{
    if (isMinimized())
        showNormal();
    raise();
    activateWindow();
}

/// Moves the focus to the next part of the window that can take it: tool bar, sidebar, page.
void MainWindow::cycle_panes(int direction)
{
    const std::array<QWidget*, 3> panes = {tool_bar_, sidebar_, pages_};
    const QWidget* focus = focusWidget();
    std::size_t at = 2;
    for (std::size_t i = 0; i < panes.size(); ++i)
        if (focus && (panes[i] == focus || panes[i]->isAncestorOf(focus)))
            at = i;
    const std::size_t step = direction > 0 ? 1 : panes.size() - 1;
    at = (at + step) % panes.size();
    if (!panes[at]->isVisible())
        at = (at + step) % panes.size();
    QWidget* target = at == 0 ? tool_bar_->first_button() : at == 1 ? sidebar_->focusProxy() : pages_->currentWidget();
    target->setFocus(Qt::ShortcutFocusReason);
    setAttribute(Qt::WA_KeyboardFocusChange);
    target->update();
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    AppWindow::resizeEvent(event);
    arrange();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    save_placement();
    AppWindow::closeEvent(event);
}

void MainWindow::restore_placement()
{
    const QSettings settings;
    if (settings.contains(sidebar_key))
        sidebar_open_ = settings.value(sidebar_key).toBool();
    sidebar_width_ = settings.value(sidebar_width_key, sidebar_width_).toInt();
    if (!restoreGeometry(settings.value(geometry_key).toByteArray()))
        resize(scaled(1280), scaled(800));
    if (!application().windows().isEmpty() && !isMaximized())
        move(application().windows().back()->pos() + QPoint(window_offset, window_offset));
}

void MainWindow::save_placement() const
{
    QSettings settings;
    settings.setValue(geometry_key, saveGeometry());
    settings.setValue(sidebar_width_key, sidebar_width_);
    if (sidebar_open_)
        settings.setValue(sidebar_key, *sidebar_open_);
}

} // namespace quillfern::app
