#include "app/window/main_window.h"

#include "app/application.h"
#include "app/document/open_document.h"
#include "app/pages/today_page.h"
#include "app/window/close_guard.h"
#include "app/window/document_desk.h"
#include "app/window/document_notice.h"
#include "app/window/fiscal_year_choice.h"
#include "app/window/page_stack.h"
#include "app/window/pane_keys.h"
#include "app/window/sidebar.h"
#include "app/window/window_layout.h"
#include "app/window/window_placement.h"
#include "app/window/window_requests.h"
#include "app/window/window_spot.h"
#include "app/window/window_tool_bar.h"
#include "desktop/menu_builder.h"
#include "desktop/surface.h"
#include "desktop/type.h"

#include <QAction>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>

#include <utility>

namespace quillfern::app {
namespace {

using desktop::scaled;

constexpr double sidebar_width = 247; ///< and the line beside it
constexpr double least_sidebar_width = 200;
constexpr double most_sidebar_width = 360;
constexpr double strip_width = 60;
const QSize room_for_a_frame(0, 40); ///< the desktop's title bar

WindowState first_state(const grants::GrantFile& file, const grants::Day& today)
{
    WindowState state;
    state.today = today;
    state.month = {today.year, today.month, 1};
    state.fiscalYear = fiscal_calendar(file.org).year_of(today);
    return state;
}

/// Messages and sheets come and go over a page that stays as it is.
bool looks_the_same(WindowState before, const WindowState& after)
{
    before.sheet = after.sheet;
    before.request = after.request;
    before.confirmDelete = after.confirmDelete;
    before.toast = after.toast;
    before.alert = after.alert;
    return before == after;
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

MainWindow::MainWindow(Application& application, std::unique_ptr<OpenDocument> document)
    : AppWindow(application), document_(std::move(document)),
      model_(first_state(document_->document().file(), application.day_watch().today())),
      desk_(new DocumentDesk(*document_, model_, application, *this)), sidebar_width_(scaled(sidebar_width)),
      splitter_(new QSplitter(this)), tool_bar_(new WindowToolBar(menus(), this)), sidebar_(new Sidebar(this)),
      notice_(new DocumentNotice(this)), pages_(new PageStack(model_, this)),
      requests_(new WindowRequests(*document_, model_, application, *this, *pages_))
{
    setObjectName(QStringLiteral("documentWindow"));
    lay_out();
    connect_document();
    connect_tool_bar();
    connect_pages();
    redraw();
    show_condition();
    restore_placement();
    arrange();
    pages_->focus_page();
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
    splitter_->addWidget(make_detail());
    splitter_->setStretchFactor(1, 1);
    connect(splitter_, &QSplitter::splitterMoved, this, [this] {
        if (sidebar_->width() >= scaled(least_sidebar_width)) // not the strip, which cannot be dragged
            sidebar_width_ = sidebar_->width();
    });
    setCentralWidget(content);
    setMinimumSize(960, 600);
}

/// The page, and above it what there is to say of the document's file.
QWidget* MainWindow::make_detail()
{
    auto* detail = new QWidget(splitter_);
    auto* column = new QVBoxLayout(detail);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(notice_);
    column->addWidget(pages_, 1);
    return detail;
}

void MainWindow::connect_document()
{
    Document& document = document_->document();
    new CloseGuard(*this, [this] { return may_close_ || desk_->may_close(); });
    connect(desk_, &DocumentDesk::close_decided, this, [this](bool close_it) {
        if (!close_it)
            return Q_EMIT stays_open();
        may_close_ = true;
        close();
    });
    connect(&document, &Document::changed, this, &MainWindow::redraw);
    connect(&document, &Document::modified_changed, this, &MainWindow::show_condition);
    connect(&document.undo_stack(), &QUndoStack::indexChanged, this, &MainWindow::take_step);
    connect(document_.get(), &OpenDocument::condition_changed, this, &MainWindow::show_condition);
    connect(&document_->recovery(), &RecoveryKeeper::problem_changed, this, &MainWindow::show_condition);
    connect(&document_->disk(), &DocumentFile::path_changed, this, &MainWindow::show_condition);
    connect(notice_, &DocumentNotice::action_chosen, desk_, &DocumentDesk::perform);
    connect(notice_, &DocumentNotice::keyboard_left, pages_, &PageStack::focus_page);
    connect(desk_, &DocumentDesk::access_changed, this, &MainWindow::show_condition);
}

/// What the toast says was done is undone.
void MainWindow::take_step()
{
    update_commands();
    if (document_->document().undo_stack().canRedo())
        model_.edit([](WindowState& state) { state.toast.reset(); });
}

/// The title, the strip and the commands tell how the value and the disk stand to each other.
void MainWindow::show_condition()
{
    setWindowTitle(document_->title() + QStringLiteral("[*] — Quillfern"));
    setWindowModified(document_->document().is_modified());
    update_commands();
    tool_bar_->update_buttons();
    pages_->today().set_actions_offered(document_->disk().is_writable());
    notice_->show_notice(notice_for(*document_));
}

CommandState MainWindow::command_state() const
{
    Document& document = document_->document();
    CommandState state;
    state.hasDocument = true;
    state.isWritable = document_->disk().is_writable();
    state.isNamed = document_->disk().is_named();
    state.isModified = document.is_modified();
    state.showsGrant = model_.state().selection == SidebarItem::grant && model_.state().shownGrant;
    state.canRevert = desk_->can_revert();
    state.canUndo = document.undo_stack().canUndo();
    state.canRedo = document.undo_stack().canRedo();
    return state;
}

QUndoStack* MainWindow::undo_manager()
{
    return &document_->document().undo_stack();
}

QString MainWindow::menu_title() const
{
    return document_->title();
}

void MainWindow::connect_pages()
{
    connect(&application().day_watch(), &DayWatch::day_changed, this,
        [this](const grants::Day& today) { model_.edit([&](WindowState& state) { state.today = today; }); });
    connect(&model_, &WindowModel::changed, this, &MainWindow::take_state);
    connect(sidebar_, &Sidebar::chosen, requests_, &WindowRequests::show_page);
    connect(&pages_->today(), &TodayPage::action_requested, requests_, &WindowRequests::do_agenda_action);
    new PaneKeys(*this,
        {{tool_bar_, [this] { return tool_bar_->first_button(); }},
            {sidebar_, [this] { return sidebar_->focusProxy(); }},
            {pages_, [this] { return pages_->currentWidget(); }}});
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
    connect(tool_bar_, &WindowToolBar::search_left, pages_, &PageStack::focus_page);
}

void MainWindow::redraw()
{
    const grants::GrantFile& file = document_->document().file();
    setWindowTitle(document_->title() + QStringLiteral("[*] — Quillfern"));
    sidebar_->set_logo(logo_bytes(document_->document().package()));
    sidebar_->show_presentation(sidebar_presentation(file, model_.state().today));
    show_state();
}

void MainWindow::take_state(const WindowState& before, const WindowState& after)
{
    if (before.today != after.today)
        return redraw();
    if (looks_the_same(before, after))
        return;
    const bool keyboard_on_page = pages_->has_keyboard();
    show_state();
    if (before.selection != after.selection && keyboard_on_page)
        pages_->focus_page();
}

void MainWindow::show_state()
{
    const WindowState& state = model_.state();
    sidebar_->select(state.selection);
    tool_bar_->show_fiscal_years(fiscal_year_choice(document_->document().file(), state.today, state.fiscalYear));
    tool_bar_->show_search(QString::fromStdString(state.search));
    pages_->show_file(document_->document().file(), state);
}

void MainWindow::find()
{
    requests_->show_page(SidebarItem::grants);
    tool_bar_->focus_search();
}

void MainWindow::ask(const WindowRequest& request)
{
    model_.ask(request);
}

void MainWindow::save()
{
    desk_->save();
}

void MainWindow::duplicate()
{
    desk_->duplicate();
}

void MainWindow::rename()
{
    desk_->rename();
}

void MainWindow::move_to()
{
    desk_->move_to();
}

void MainWindow::revert()
{
    desk_->revert();
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
    pages_->today().set_right_column(scaled(layout.rightColumn));
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    AppWindow::resizeEvent(event);
    arrange();
}

void MainWindow::changeEvent(QEvent* event)
{
    AppWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        document_->look_at_disk();
}

/// Only once the window may close: see CloseGuard.
void MainWindow::closeEvent(QCloseEvent* event)
{
    document_->recovery().discard(); // saved, or not wanted
    remember_placement({saveGeometry(), sidebar_open_, sidebar_width_});
    AppWindow::closeEvent(event);
}

/// The window may have been larger on another screen.
void MainWindow::fit_screen()
{
    const QRect room = screen()->availableGeometry();
    resize(size().boundedTo(room.size() - room_for_a_frame));
    const QRect frame(pos(), size() + room_for_a_frame);
    if (!room.contains(frame))
        move(spot_inside(frame, room));
}

void MainWindow::restore_placement()
{
    const WindowPlacement placement = last_placement();
    sidebar_open_ = placement.sidebarOpen;
    if (placement.sidebarWidth > 0)
        sidebar_width_ = placement.sidebarWidth;
    if (!restoreGeometry(placement.geometry))
        resize(QSize(scaled(1280), scaled(800)).boundedTo(screen()->availableSize() - room_for_a_frame));
    else if (!isMaximized() && !isFullScreen())
        fit_screen();
    if (application().windows().isEmpty() || isMaximized())
        return;
    const QWidget& before = *application().windows().back();
    const QSize frame = before.frameGeometry().size() - before.size(); // this window has none before it is shown
    move(spot_after({before.pos(), size() + frame}, before.screen()->availableGeometry()));
}

} // namespace quillfern::app
