#include "app/export/export_choices.h"
#include "grants/sample_organization.h"

#include <gmock/gmock.h>

namespace quillfern::app {
namespace {

using grants::GrantFile;
using testing::HasSubstr;
using testing::Not;

const grants::Day today{2026, 9, 10};

TEST(ExportChoices, DecideWhichDatesAreSavedAndSayHowMany)
{
    const GrantFile file = grants::sample_content(today, Lang::en).file;
    ExportChoices choices;
    choices.kind = ExportKind::calendar;
    const ExportWords words = export_words(file, choices);
    EXPECT_EQ(words.draftDates + ' ' + words.payments + ' ' + words.decisions, "10 7 7");
    EXPECT_EQ(words.result, "38 dates will be saved.");
    EXPECT_EQ(words.about, "Open dates of Linden Ferry Community Pantry");
    choices.draftDates = choices.payments = false;
    EXPECT_EQ(export_words(file, choices).result, "21 dates will be saved.");
    EXPECT_FALSE(export_words({}, choices).any);
}

TEST(ExportChoices, AnAlertThatIsOffLeavesNoAlarms)
{
    const GrantFile file = grants::sample_content(today, Lang::en).file;
    ExportChoices choices;
    choices.kind = ExportKind::calendar;
    EXPECT_THAT(export_text(file, choices, {}), HasSubstr("TRIGGER:-P6DT15H"));
    choices.alert = false;
    EXPECT_THAT(export_text(file, choices, {}), Not(HasSubstr("VALARM")));
    EXPECT_EQ(alert_words(1), "The day before, 9:00 AM");
    EXPECT_EQ(alert_words(7), "7 days before, 9:00 AM");
}

TEST(ExportChoices, NameTheFileSoThatEveryDiskTakesIt)
{
    const auto name_for = [](const std::string& organization, Lang lang = Lang::en) {
        GrantFile file;
        file.org.name = organization;
        ExportChoices choices;
        choices.lang = lang;
        return export_file_name(file, choices);
    };
    EXPECT_EQ(name_for("Linden Ferry"), "Linden Ferry grants.csv");
    EXPECT_EQ(name_for("Linden Ferry", Lang::es), "Linden Ferry subvenciones.csv");
    EXPECT_EQ(name_for("A/B: \"C\"\n"), "AB C grants.csv");
    EXPECT_EQ(name_for("../.."), "grants.csv");
    EXPECT_EQ(name_for(""), "grants.csv");
    std::string long_name;
    for (int i = 0; i < 100; ++i)
        long_name += "é";
    EXPECT_EQ(name_for(long_name), long_name.substr(0, 120) + " grants.csv");
}

} // namespace
} // namespace quillfern::app
