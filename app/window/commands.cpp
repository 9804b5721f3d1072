#include "app/window/commands.h"

#include "app/window/menu_help.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillfern::app {
namespace {

using desktop::CommandRow;
using enum desktop::MenuId;

constexpr bool shows_document(const CommandState& state)
{
    return state.hasDocument;
}

constexpr bool can_edit(const CommandState& state)
{
    return state.hasDocument && state.isWritable;
}

/// An untitled document has something to save even before its first edit: its name.
constexpr bool can_save(const CommandState& state)
{
    return can_edit(state) && (state.isModified || !state.isNamed);
}

constexpr bool has_place(const CommandState& state)
{
    return can_edit(state) && state.isNamed;
}

constexpr bool can_revert(const CommandState& state)
{
    return has_place(state) && state.canRevert;
}

constexpr bool can_undo(const CommandState& state)
{
    return state.canUndo;
}

constexpr bool can_redo(const CommandState& state)
{
    return state.canRedo;
}

constexpr bool shows_meeting(const CommandState& state)
{
    return state.showsMeeting;
}

constexpr bool shows_no_meeting(const CommandState& state)
{
    return !state.showsMeeting;
}

constexpr auto table = std::to_array<Command>({
    {{"new", file, file_new_group, "New", "Ctrl+N"}, [](CommandTarget& target) { target.new_document(); }},
    {{"open", file, file_new_group, "Open…", "Ctrl+O"}, [](CommandTarget& target) { target.choose_file(); }},
    {{"openSample", file, file_new_group, "Open the Sample Organization", ""},
        [](CommandTarget& target) { target.open_sample(); }},
    {{"newGrant", file, file_new_group, "New Grant", "Ctrl+Alt+N"}},
    {{"newMeeting", file, file_new_group, "New Meeting…", "Ctrl+Alt+Shift+N"}},
    {{"newMotion", file, file_new_group, "New Motion…", "Ctrl+Alt+M"}},
    {{"newAction", file, file_new_group, "New Action Item…", "Ctrl+Alt+Shift+A"}},
    {{"addMember", file, file_new_group, "Add Board Member…", ""}},
    {{"addPerson", file, file_new_group, "Add Person…", ""}},
    {{"importCSV", file, file_new_group, "Import Spreadsheet (CSV)…", "Ctrl+Shift+I"}},
    {{"importMarrowind", file, file_new_group, "Import Marrowind Board…", ""},
        [](CommandTarget& target) { target.ask(request::Plain::importMarrowind); }, can_edit},
    {{"save", file, 1, "Save", "Ctrl+S"}, [](CommandTarget& target) { target.save(); }, can_save},
    {{"duplicate", file, 1, "Duplicate", "Ctrl+Shift+S"}, [](CommandTarget& target) { target.duplicate(); },
        shows_document},
    {{"rename", file, 1, "Rename…", ""}, [](CommandTarget& target) { target.rename(); }, has_place},
    {{"moveTo", file, 1, "Move To…", ""}, [](CommandTarget& target) { target.move_to(); }, has_place},
    {{"revert", file, 1, "Revert to Saved", ""}, [](CommandTarget& target) { target.revert(); }, can_revert},
    {{"exportBoardPDF", file, file_export_group, "Export Board Summary PDF…", "Ctrl+E"}},
    {{"exportClientPDF", file, file_export_group, "Export Client Status Report…", ""}},
    {{"exportGrantsCSV", file, file_export_group, "Export Grants Spreadsheet (CSV)…", ""},
        [](CommandTarget& target) { target.ask(request::Export{ExportKind::grantsCSV}); }, shows_document},
    {{"exportCalendar", file, file_export_group, "Export Calendar (.ics)…", "Ctrl+Shift+E"},
        [](CommandTarget& target) { target.ask(request::Export{ExportKind::calendar}); }, shows_document},
    {{"addToCalendar", file, file_export_group, "Add Deadlines to Calendar…", ""}},
    {{"exportMinutes", file, file_export_group, "Export Minutes PDF…", "Ctrl+Alt+E"}},
    {{"exportAgenda", file, file_export_group, "Export Agenda PDF…", ""}},
    {{"exportNotice", file, file_export_group, "Export Meeting Notice PDF…", ""}},
    {{"exportMeetingCalendar", file, file_export_group, "Add Meeting to Calendar (.ics)…", ""}},
    {{"exportActionsCSV", file, file_export_group, "Export Action Items (CSV)…", ""}},
    {{"exportHandOff", file, file_export_group, "Export Hand-off Bundle…", ""}},
    {{"printBoard", file, file_print_group, "Print Board Summary…", "Ctrl+P"}, nullptr, nullptr, shows_no_meeting},
    {{"printMinutes", file, file_print_group, "Print Minutes…", "Ctrl+P"}, nullptr, nullptr, shows_meeting},
    {{"closeWindow", file, 4, "Close Window", "Ctrl+W"}, [](CommandTarget& target) { target.close_window(); }},
    {{"quit", file, 4, "Quit Quillfern", "Ctrl+Q"}, [](CommandTarget& target) { target.quit(); }},
    {{"undo", edit, 0, "Undo", "Ctrl+Z"}, [](CommandTarget& target) { target.undo(); }, can_undo},
    {{"redo", edit, 0, "Redo", "Ctrl+Shift+Z"}, [](CommandTarget& target) { target.redo(); }, can_redo},
    {{"cut", edit, 1, "Cut", "Ctrl+X"}, [](CommandTarget& target) { target.cut(); },
        [](const CommandState& state) { return state.text.cut; }},
    {{"copy", edit, 1, "Copy", "Ctrl+C"}, [](CommandTarget& target) { target.copy(); },
        [](const CommandState& state) { return state.text.copy; }},
    {{"paste", edit, 1, "Paste", "Ctrl+V"}, [](CommandTarget& target) { target.paste(); },
        [](const CommandState& state) { return state.text.paste; }},
    {{"selectAll", edit, 1, "Select All", "Ctrl+A"}, [](CommandTarget& target) { target.select_all(); },
        [](const CommandState& state) { return state.text.selectAll; }},
    {{"find", edit, 2, "Find a Grant or Funder", "Ctrl+F"}, [](CommandTarget& target) { target.find(); },
        shows_document},
    {{"settings", edit, 3, "Settings…", "Ctrl+,"}, [](CommandTarget& target) { target.show_settings(); }},
    {{"addFiles", grant, 0, "Add Files…", "Ctrl+Alt+A"}},
    {{"generateReports", grant, 0, "Generate Reports", "Ctrl+Alt+G"}},
    {{"askBoard", grant, 0, "Ask the Board…", ""}},
    {{"deleteGrant", grant, 1, "Delete Grant…", ""},
        [](CommandTarget& target) { target.ask(request::Plain::deleteGrant); },
        [](const CommandState& state) { return can_edit(state) && state.showsGrant; }},
    {{"agendaTab", meeting, 0, "Agenda", "Ctrl+Alt+1"}},
    {{"liveTab", meeting, 0, "Run Meeting", "Ctrl+Alt+2"}},
    {{"minutesTab", meeting, 0, "Minutes", "Ctrl+Alt+3"}},
    {{"callToOrder", meeting, 1, "Call to Order", ""}},
    {{"adjourn", meeting, 1, "Adjourn", ""}},
    {{"showToday", go, 0, "Today", "Ctrl+1"},
        [](CommandTarget& target) { target.ask(request::Show{SidebarItem::today}); }, shows_document},
    {{"showPipeline", go, 0, "Pipeline", "Ctrl+2"},
        [](CommandTarget& target) { target.ask(request::Show{SidebarItem::pipeline}); }, shows_document},
    {{"showCalendar", go, 0, "Calendar", "Ctrl+3"}},
    {{"showReports", go, 0, "Reports", "Ctrl+4"}},
    {{"showGrants", go, 0, "All Grants", "Ctrl+5"},
        [](CommandTarget& target) { target.ask(request::Show{SidebarItem::grants}); }, shows_document},
    {{"showFunders", go, 0, "Funders", "Ctrl+6"},
        [](CommandTarget& target) { target.ask(request::Show{SidebarItem::funders}); }, shows_document},
    {{"showBoardOverview", go, 1, "Board Overview", "Ctrl+7"}},
    {{"showActionItems", go, 1, "Action Items", "Ctrl+8"}},
    {{"showMotions", go, 1, "Motions", ""}},
    {{"showMinuteBook", go, 1, "Minute Book", ""}},
    {{"showMembers", go, 1, "Board & Members", ""}},
    {{"showPeople", go, 2, "People", "Ctrl+9"}},
    {{"showOrganization", go, 2, "Organization", "Ctrl+0"}},
    {{"portfolio", window, 0, "Portfolio", "Ctrl+Shift+P"}},
    {{"minimize", window, 1, "Minimize", "Ctrl+M"}, [](CommandTarget& target) { target.minimize(); }},
    {{"toggleSidebar", window, 1, "Show or Hide the Sidebar", "F9"},
        [](CommandTarget& target) { target.toggle_sidebar(); }, shows_document},
    {{"help", help, 0, menu_help.title(), menu_help.shortcut}, menu_help.action},
    {{"helpReportingDates", help, 1, "Reporting Dates", ""},
        [](CommandTarget& target) { target.show_help(HelpTopic::reports); }},
    {{"helpMotions", help, 1, "Motions and Votes", ""},
        [](CommandTarget& target) { target.show_help(HelpTopic::votes); }},
    {{"helpImport", help, 1, "Importing a Spreadsheet", ""},
        [](CommandTarget& target) { target.show_help(HelpTopic::importing); }},
    {{"helpLimits", help, 1, "What Quillfern Doesn’t Do", ""},
        [](CommandTarget& target) { target.show_help(HelpTopic::notDo); }},
    {{"emailSupport", help, 2, "Email Support", ""}, [](CommandTarget& target) { target.email_support(); }},
    {{"checkForUpdates", help, 3, "Check for Updates…", ""}, [](CommandTarget& target) { target.check_for_updates(); }},
    {{"about", help, 3, "About Quillfern", ""}, [](CommandTarget& target) { target.show_about(); }},
});

constexpr auto rows_of_table = [] {
    std::array<CommandRow, table.size()> rows{};
    for (std::size_t i = 0; i < table.size(); ++i)
        rows[i] = table[i].row;
    return rows;
}();

} // namespace

std::span<const Command> commands()
{
    return table;
}

std::span<const CommandRow> command_rows()
{
    return rows_of_table;
}

const Command* find_command(std::string_view id)
{
    const auto found =
        std::find_if(table.begin(), table.end(), [id](const Command& command) { return command.row.id == id; });
    return found == table.end() ? nullptr : &*found;
}

bool is_enabled(const Command& command, const CommandState& state)
{
    return command.act && (!command.can_act || command.can_act(state));
}

bool is_offered(const Command& command, const CommandState& state)
{
    return !command.is_offered || command.is_offered(state);
}

} // namespace quillfern::app
