#include "app/settings/preferences.h"
#include "app/settings/recent_documents.h"
#include "app/settings/settings_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace quillfern::app {

void PrintTo(const PreferenceValues& values, std::ostream* out)
{
    *out << values.defaultFiscalStart << ' ' << values.defaultDraftLead << ' ' << static_cast<int>(values.paper) << " '"
         << values.preparedBy << "' " << values.welcomeDone << ' ' << values.remindersOn << " '"
         << values.reminderLeadDays << "' " << values.reminderHour << ' ' << values.actionReminderDays;
}

namespace {

using testing::HasSubstr;

/// A settings file of the test's own, with what the test has written there.
class PreferencesTest : public testing::Test {
protected:
    void write(const QByteArray& content) const
    {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    PreferenceValues read() const
    {
        SettingsFile file(path_);
        return Preferences(file).values();
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath("quillfern.conf");
};

PreferenceValues with(void (*edit)(PreferenceValues&))
{
    PreferenceValues values;
    edit(values);
    return values;
}

TEST_F(PreferencesTest, AreReadWithTheirBoundsAndDefaults)
{
    using Values = PreferenceValues;
    const std::pair<const char*, Values> cases[] = {
        {"", {}},
        {"reminderHour=30", with([](Values& v) { v.reminderHour = 23; })},
        {"reminderHour=-1", with([](Values& v) { v.reminderHour = 0; })},
        {"reminderHour=7.5", {}},
        {"reminderHour=nine", {}},
        {"reminderHour=8, 9", {}},
        {"actionReminderDays=365", with([](Values& v) { v.actionReminderDays = 90; })},
        {"actionReminderDays=0", with([](Values& v) { v.actionReminderDays = 0; })},
        {"actionReminderDays=true", {}},
        {"defaultFiscalStart=7", with([](Values& v) { v.defaultFiscalStart = 7; })},
        {"defaultFiscalStart=0", {}},
        {"defaultFiscalStart=13", with([](Values& v) { v.defaultFiscalStart = 12; })},
        {"defaultDraftLead=-3", with([](Values& v) { v.defaultDraftLead = 0; })},
        {"defaultDraftLead=99999", with([](Values& v) { v.defaultDraftLead = 365; })},
        {"paper=a4", with([](Values& v) { v.paper = Paper::a4; })},
        {"paper=legal", {}},
        {"preparedBy=Fielding, Grant Services", with([](Values& v) { v.preparedBy = "Fielding, Grant Services"; })},
        {"welcomeDone=true", with([](Values& v) { v.welcomeDone = true; })},
        {"remindersOn=yes", {}},
        {"reminderLeadDays=\"3,0\"", with([](Values& v) { v.reminderLeadDays = "3,0"; })},
        {"reminderLeadDays=14,7,1,0", with([](Values& v) { v.reminderLeadDays = "14,7,1,0"; })},
        {"reminderLeadDays=\"5,0\"", {}},
    };
    for (int number = 0; const auto& [line, values] : cases) {
        path_ = folder_.filePath(QString::number(++number)); // two files of one moment and size are one to QSettings
        write(QByteArray("[General]\n") + line + "\n");
        EXPECT_EQ(read(), values) << line;
    }
}

TEST_F(PreferencesTest, AChangeIsKeptUnderItsKeyAndToldOnce)
{
    SettingsFile file(path_);
    Preferences preferences(file);
    int told = 0;
    QObject::connect(&preferences, &Preferences::changed, [&] { ++told; });
    const auto change = [](PreferenceValues& values) {
        values = {7, 14, Paper::a4, "Fielding, “Grants”", true, true, "1,0", 18, 400};
    };
    preferences.edit(change);
    preferences.edit(change);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(preferences.values().actionReminderDays, 90);
    EXPECT_EQ(read(), preferences.values());
    for (const char* line : {"defaultFiscalStart=7", "defaultDraftLead=14", "paper=a4", "welcomeDone=true",
             "remindersOn=true", "reminderLeadDays=\"1,0\"", "reminderHour=18", "actionReminderDays=90"})
        EXPECT_THAT(content(path_).toStdString(), HasSubstr(line));
    EXPECT_EQ(preferences.problem(), "");
}

TEST_F(PreferencesTest, WhatIsNoSettingsFileIsKeptAsideAndToldOf)
{
    const QByteArray cases[] = {QByteArray("\x7f"
                                           "ELF\0\0=\n",
                                    8),
        "[General]\nreminderHour=8\nno value here\n", "[General\nreminderHour=8\n", "preparedBy=\xff\xfe\n",
        QByteArray(2'000'000, '\n')};
    int number = 1;
    for (const QByteArray& damaged : cases) {
        write(damaged);
        SettingsFile file(path_);
        Preferences preferences(file);
        EXPECT_EQ(preferences.values(), PreferenceValues());
        const QString aside = path_ + (number == 1 ? QString(".damaged") : QString(".damaged-%1").arg(number));
        EXPECT_EQ(content(aside), damaged);
        EXPECT_THAT(preferences.problem().toStdString(), HasSubstr(aside.toStdString()));
        preferences.edit([](PreferenceValues& values) { values.reminderHour = 8; });
        EXPECT_EQ(read().reminderHour, 8);
        EXPECT_NE(preferences.problem(), "") << "the user may not have read it yet";
        ++number;
    }
}

TEST_F(PreferencesTest, AFolderInTheWayIsKeptAsideWithWhatIsInIt)
{
    QDir(folder_.path()).mkpath("quillfern.conf/letters");
    EXPECT_EQ(read(), PreferenceValues());
    EXPECT_TRUE(QDir(path_ + ".damaged/letters").exists());
    EXPECT_FALSE(QFile::exists(path_));
}

TEST_F(PreferencesTest, AChangeThatCannotBeWrittenHoldsAndIsToldOf)
{
    write("a file, where the folder of the settings should be");
    SettingsFile file(path_ + "/quillfern.conf");
    Preferences preferences(file);
    EXPECT_EQ(preferences.problem(), "");
    int told = 0;
    QObject::connect(&preferences, &Preferences::problem_changed, [&] { ++told; });
    preferences.edit([](PreferenceValues& values) { values.reminderHour = 8; });
    preferences.edit([](PreferenceValues& values) { values.paper = Paper::a4; });
    EXPECT_EQ(preferences.values().reminderHour, 8);
    EXPECT_EQ(Preferences(file).values(), preferences.values());
    EXPECT_THAT(preferences.problem().toStdString(), HasSubstr("Changes hold only until you quit Quillfern."));
    EXPECT_EQ(told, 1);
}

TEST_F(PreferencesTest, RecentDocumentsAreNewestFirstEachOnceAndTenAtMost)
{
    SettingsFile file(path_);
    RecentDocuments recent(file);
    for (int number = 1; number <= 12; ++number)
        recent.add(QString("/files/%1.quillfern").arg(number));
    EXPECT_EQ(recent.paths().size(), 10);
    EXPECT_EQ(recent.paths().back(), "/files/3.quillfern");
    recent.add("/files/./5.quillfern/");
    recent.rename("/files/12.quillfern", "/moved/12.quillfern");
    recent.rename("/files/11.quillfern", "/files/10.quillfern"); // in place of another one
    recent.rename("/files/never opened.quillfern", "/files/x.quillfern");
    recent.remove("/files/9.quillfern");
    const QStringList expected = {"/files/5.quillfern", "/moved/12.quillfern", "/files/10.quillfern",
        "/files/8.quillfern", "/files/7.quillfern", "/files/6.quillfern", "/files/4.quillfern", "/files/3.quillfern"};
    EXPECT_EQ(recent.paths(), expected);
    SettingsFile later(path_);
    EXPECT_EQ(RecentDocuments(later).paths(), expected);
    recent.clear();
    SettingsFile latest(path_);
    EXPECT_TRUE(RecentDocuments(latest).paths().isEmpty());
}

TEST_F(PreferencesTest, RecentDocumentsSayWhatIsMissingAndTellNamesakesApart)
{
    QDir(folder_.path()).mkpath("Pantry.quillfern");
    SettingsFile file(path_);
    RecentDocuments recent(file);
    recent.add("/elsewhere/Pantry.quillfern");
    recent.add("/elsewhere/Other.quillfern");
    recent.add(folder_.filePath("Pantry.quillfern"));
    QStringList labels;
    for (const RecentDocument& document : recent.listed())
        labels.append(document.label + (document.missing ? " (missing)" : ""));
    EXPECT_EQ(labels, QStringList({"Pantry — " + folder_.path(), "Other (missing)", "Pantry — /elsewhere (missing)"}));
}

} // namespace
} // namespace quillfern::app
