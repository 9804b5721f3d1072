#pragma once

#include "app/state/help_topic.h"
#include "app/state/window_request.h"
#include "desktop/command.h"
#include "desktop/text_editing.h"

#include <span>
#include <string_view>

namespace quillfern::app {

/// What a command needs to know to decide whether it can act.
struct CommandState {
    bool hasDocument = false; ///< the window shows a document
    bool isWritable = false; ///< the document may be changed
    bool isNamed = false; ///< it lives in a file
    bool isModified = false; ///< it differs from what was saved last
    bool canRevert = false; ///< there is a saved state that differs, or an earlier version
    bool canUndo = false;
    bool canRedo = false;
    desktop::TextAbilities text = {}; ///< of the field that has the keyboard; known while the Edit menu is open
    bool showsGrant = false; ///< one grant's detail is open
    bool showsMeeting = false; ///< the board's workspace shows a meeting

    friend bool operator==(const CommandState&, const CommandState&) = default;
};

/// What the commands act on: the window in which they were given, and the program behind it. A window without a
/// document leaves alone what needs one.
class CommandTarget {
public:
    /// The program's.
    virtual void new_document() = 0;
    virtual void choose_file() = 0;
    virtual void open_sample() = 0;
    virtual void quit() = 0;
    virtual void show_settings() = 0;
    virtual void show_help() = 0; ///< on the topic that was shown last
    virtual void show_help(HelpTopic topic) = 0;
    virtual void email_support() = 0;
    virtual void check_for_updates() = 0;
    virtual void show_about() = 0;

    /// The window's.
    virtual void close_window() = 0;
    virtual void minimize() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;
    virtual void select_all() = 0;

    /// The document window's.
    virtual void ask(const WindowRequest& request) = 0;
    virtual void save() = 0;
    virtual void duplicate() = 0;
    virtual void rename() = 0;
    virtual void move_to() = 0;
    virtual void revert() = 0;
    virtual void find() = 0;
    virtual void toggle_sidebar() = 0;

protected:
    ~CommandTarget() = default;
};

struct Command {
    using Condition = bool (*)(const CommandState& state);

    desktop::CommandRow row;
    void (*act)(CommandTarget& target) = nullptr; ///< null while nothing can do it
    Condition can_act = nullptr; ///< null: whenever there is an `act`
    Condition is_offered = nullptr; ///< null: always; a command that is not offered is not in the menu
};

/// The groups of the File menu that the tool bar offers too.
inline constexpr int file_new_group = 0;
inline constexpr int file_export_group = 2;
inline constexpr int file_print_group = 3;

/// Every command of the menu bar, in the menus' order.
std::span<const Command> commands();

/// The rows alone, in the same order.
std::span<const desktop::CommandRow> command_rows();

/// Null when no command has the id.
const Command* find_command(std::string_view id);

/// A command that cannot act is shown, but disabled.
bool is_enabled(const Command& command, const CommandState& state);

/// Printing is one place in the menu and one shortcut, whatever there is to print.
bool is_offered(const Command& command, const CommandState& state);

} // namespace quillfern::app
