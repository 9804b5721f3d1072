#include "app/window/window_requests.h"

#include "app/application.h"
#include "app/document/open_document.h"
#include "app/export/file_export.h"
#include "app/pages/agenda_edit.h"
#include "app/window/board_import.h"
#include "app/window/welcome_sheet.h"
#include "desktop/alert.h"
#include "desktop/toast.h"
#include "grants/grant_edits.h"
#include "platform/clock.h"

#include <QDialog>

#include <utility>

namespace quillfern::app {

WindowRequests::WindowRequests(
    OpenDocument& document, WindowModel& model, Application& application, QWidget& window, QWidget& page)
    : QObject(&window), document_(document), model_(model), application_(application), window_(window), page_(page)
{
    connect(&model_, &WindowModel::changed, this, &WindowRequests::take_state);
}

void WindowRequests::take_state(const WindowState& before, const WindowState& after)
{
    if (after.request) {
        const WindowRequest request = *after.request;
        model_.edit([](WindowState& state) { state.request.reset(); });
        perform(request);
    }
    if (before.sheet != after.sheet && after.sheet)
        open_sheet(*after.sheet);
    if (before.confirmDelete != after.confirmDelete && after.confirmDelete)
        confirm_delete(*after.confirmDelete);
    if (before.alert != after.alert && after.alert)
        show_alert(*after.alert);
    if (before.toast != after.toast && after.toast)
        show_toast(*after.toast);
    else if (before.toast && !after.toast && toast_)
        toast_->leave();
}

void WindowRequests::perform(const WindowRequest& request)
{
    if (const auto* exporting = std::get_if<request::Export>(&request))
        model_.edit([&](WindowState& state) { state.sheet = sheet::Export{exporting->kind}; });
    else if (const auto* showing = std::get_if<request::Show>(&request))
        show_page(showing->item);
    else
        perform(std::get<request::Plain>(request));
}

void WindowRequests::perform(request::Plain request)
{
    if (request == request::Plain::importMarrowind)
        import_board();
    else if (request == request::Plain::deleteGrant)
        model_.edit([](WindowState& state) { state.confirmDelete = state.shownGrant; });
}

void WindowRequests::show_page(SidebarItem page)
{
    if (destination(page).built)
        model_.edit([page](WindowState& state) { state.selection = page; });
}

void WindowRequests::open_sheet(const WindowSheet& sheet)
{
    QDialog* opened = nullptr;
    if (const auto* exporting = std::get_if<sheet::Export>(&sheet))
        opened = start_export(document_.document().file(), exporting->kind, &window_,
            [this](const QString& name) { model_.tell("Saved “" + name.toStdString() + "”."); });
    else if (std::get<sheet::Plain>(sheet) == sheet::Plain::welcome)
        opened = open_welcome();
    if (opened)
        connect(
            opened, &QDialog::finished, this, [this] { model_.edit([](WindowState& state) { state.sheet.reset(); }); });
}

QDialog* WindowRequests::open_welcome()
{
    const bool empty = !document_.disk().is_named() && document_.document().file().grants.empty();
    auto* welcome = new WelcomeSheet(
        {.importCSV = false, .importBoard = document_.disk().is_writable(), .emptyFile = empty}, &window_);
    connect(welcome, &WelcomeSheet::finished, this, [this] { application_.end_welcome(model_); });
    connect(welcome, &WelcomeSheet::sample_chosen, &application_, &Application::open_sample);
    connect(welcome, &WelcomeSheet::import_board_chosen, this, [this] { model_.ask(request::Plain::importMarrowind); });
    welcome->open();
    return welcome;
}

void WindowRequests::edit(const QString& label, grants::GrantFile next, const QString& toast)
{
    if (!document_.disk().is_writable())
        return model_.tell("This window shows the file, but can’t change it.");
    document_.document().edit(label, std::move(next));
    if (!toast.isEmpty())
        model_.tell(toast.toStdString());
}

void WindowRequests::do_agenda_action(const QString& item)
{
    const auto done =
        agenda_edit(document_.document().file(), item.toStdString(), model_.state().today, platform::now());
    if (done)
        edit(QString::fromStdString(done->label), done->next, QString::fromStdString(done->toast));
}

void WindowRequests::import_board()
{
    start_board_import([this] { return document_.document().file(); }, &window_,
        [this](grants::GrantFile next, const QString& label, const QString& toast) {
            edit(label, std::move(next), toast);
        });
}

/// Removing is one step; until the answer nothing has changed.
void WindowRequests::confirm_delete(const Uuid& grant)
{
    const auto answered = [this] { model_.edit([](WindowState& state) { state.confirmDelete.reset(); }); };
    desktop::choose({QStringLiteral("Delete this grant?"),
                        QStringLiteral("Its deadlines, reports, payments and attached files go with it. Edit › Undo "
                                       "brings it back."),
                        {}},
        {QStringLiteral("trash"), desktop::IconTile::Tone::danger,
            {{QStringLiteral("Delete Grant"), desktop::ButtonKind::destructive,
                [this, grant, answered] {
                    answered();
                    delete_grant(grant);
                }}}},
        &window_, answered);
}

void WindowRequests::delete_grant(const Uuid& grant)
{
    Document& document = document_.document();
    document.edit(QStringLiteral("Delete Grant"), grants::without_grant(document.package(), grant));
    model_.edit([](WindowState& state) {
        state.shownGrant.reset();
        if (state.selection == SidebarItem::grant)
            state.selection = SidebarItem::grants;
    });
}

void WindowRequests::show_alert(const AlertItem& item)
{
    desktop::show_alert(
        {QString::fromStdString(item.title), QString::fromStdString(item.message), {}}, &window_, [this, id = item.id] {
            model_.edit([id](WindowState& state) {
                if (state.alert && state.alert->id == id)
                    state.alert.reset();
            });
        });
}

void WindowRequests::show_toast(const Toast& toast)
{
    if (!toast_) {
        toast_ = new desktop::Toast(&page_);
        connect(toast_, &desktop::Toast::gone, this,
            [this] { model_.edit([](WindowState& state) { state.toast.reset(); }); });
    }
    toast_->show_message(QString::fromStdString(toast.text));
}

} // namespace quillfern::app
