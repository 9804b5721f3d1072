#include "app/window/commands.h"
#include "app/window/window_layout.h"

#include <gmock/gmock.h>

#include <map>
#include <set>
#include <string>

namespace quillfern::app {
namespace {

using testing::ElementsAre;

TEST(Commands, NoTwoThatAreOfferedTogetherShareAnIdOrAShortcut)
{
    for (const bool meeting : {false, true}) {
        std::set<std::string_view> ids;
        std::set<std::string_view> shortcuts;
        for (const Command& command : commands()) {
            EXPECT_TRUE(ids.insert(command.row.id).second) << command.row.id;
            if (command.row.shortcut.empty() || !is_offered(command, {true, meeting}))
                continue;
            EXPECT_TRUE(shortcuts.insert(command.row.shortcut).second) << command.row.id;
        }
        EXPECT_TRUE(shortcuts.contains("Ctrl+P"));
    }
}

TEST(Commands, EachMenuKeepsItsGroupsTogetherAndInOrder)
{
    std::map<desktop::MenuId, int> last;
    for (const Command& command : commands()) {
        EXPECT_GE(command.row.group, last[command.row.menu]) << command.row.id;
        last[command.row.menu] = command.row.group;
    }
}

TEST(Commands, WithoutADocumentOnlyThoseThatNeedNoneCanAct)
{
    std::vector<std::string_view> enabled;
    for (const Command& command : commands())
        if (is_enabled(command, {.hasDocument = false}))
            enabled.push_back(command.row.id);
    EXPECT_THAT(enabled,
        ElementsAre("new", "open", "openSample", "closeWindow", "quit", "settings", "minimize", "help",
            "helpReportingDates", "helpMotions", "helpImport", "helpLimits", "emailSupport", "checkForUpdates",
            "about"));
    EXPECT_TRUE(is_enabled(*find_command("showToday"), {.hasDocument = true}));
    EXPECT_FALSE(is_enabled(*find_command("showCalendar"), {.hasDocument = true}));
}

TEST(WindowLayout, GivesWayFromTheSidesAndHeedsTheUser)
{
    struct Case {
        int width;
        std::optional<bool> asked;
        WindowLayout expected;
    };
    const Case cases[] = {
        {1280, std::nullopt, {SidebarForm::full, 316}},
        {1280, false, {SidebarForm::hidden, 316}},
        {1279, std::nullopt, {SidebarForm::strip, 280}},
        {1279, true, {SidebarForm::full, 280}},
        {1100, false, {SidebarForm::strip, 280}},
        {1099, std::nullopt, {SidebarForm::strip, 0}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(window_layout(c.width, c.asked), c.expected) << c.width;
}

} // namespace
} // namespace quillfern::app
