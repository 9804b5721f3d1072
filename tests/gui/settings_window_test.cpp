#include "app/settings/preferences.h"
#include "app/settings/reminder_permission.h"
#include "app/settings/settings_file.h"
#include "app/settings/settings_window.h"
#include "desktop/notice_strip.h"
#include "desktop/segmented_control.h"
#include "window_fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>

namespace quillfern::app {
namespace {

class FakePermission : public ReminderPermission {
public:
    void ask(std::function<void(bool)> answer) override { answer_ = std::move(answer); }

    std::function<void(bool)> answer_;
};

/// The settings of a program that keeps them in a file of the test's own.
class SettingsWindowTest : public WindowTest {
protected:
    ~SettingsWindowTest() override { delete window_; }

    void show(ReminderPermission* permission)
    {
        window_ = new SettingsWindow(program_, preferences_, permission);
        window_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window_));
    }

    template <class Widget>
    Widget& part(const char* name)
    {
        return *window_->findChild<Widget*>(QLatin1String(name));
    }

    void open_pane(const QString& title)
    {
        for (auto* tab : window_->findChildren<QAbstractButton*>())
            if (tab->text() == title)
                tab->click();
    }

    /// As another program that reads the file would see it.
    PreferenceValues kept() const
    {
        SettingsFile file(folder_.filePath("quillfern.conf"));
        return Preferences(file).values();
    }

    SettingsFile file_{folder_.filePath("quillfern.conf")};
    Preferences preferences_{file_};
    QPointer<SettingsWindow> window_;
};

TEST_F(SettingsWindowTest, WhatIsChangedIsKeptAtOnce)
{
    FakePermission permission;
    show(&permission);
    part<QComboBox>("fiscalStart").setCurrentIndex(6);
    part<QSpinBox>("draftLead").setFocus();
    part<QSpinBox>("draftLead").selectAll();
    QTest::keyClicks(&part<QSpinBox>("draftLead"), "14\t");
    QTest::keyClick(part<desktop::SegmentedControl>("paper").findChild<QAbstractButton*>(), Qt::Key_Right);
    open_pane("Reminders");
    part<QComboBox>("reminderLeadDays").setCurrentIndex(3);
    part<QComboBox>("reminderHour").setCurrentIndex(part<QComboBox>("reminderHour").findText("6:00 PM"));
    part<QSpinBox>("actionReminderDays").setValue(5);
    part<QAbstractButton>("remindersOn").click();
    EXPECT_EQ(kept(), (PreferenceValues{7, 14, Paper::a4, "", false, true, "1,0", 18, 5}));
}

TEST_F(SettingsWindowTest, ANameThatIsBeingTypedIsKeptWhenTheWindowIsClosed)
{
    show(nullptr);
    part<QLineEdit>("preparedBy").setFocus();
    QTest::keyClicks(&part<QLineEdit>("preparedBy"), " Fielding Grant Services ");
    QTest::keyClick(window_, Qt::Key_Escape);
    EXPECT_FALSE(window_ && window_->isVisible());
    EXPECT_EQ(kept().preparedBy, "Fielding Grant Services");
}

TEST_F(SettingsWindowTest, TheWelcomeScreenIsOfferedAgainOnceItWasSeen)
{
    preferences_.edit([](PreferenceValues& values) { values.welcomeDone = true; });
    show(nullptr);
    auto& button = part<QPushButton>("showWelcome");
    EXPECT_EQ(button.text(), "Show the Welcome Screen Next Time");
    button.click();
    EXPECT_FALSE(kept().welcomeDone);
    EXPECT_FALSE(button.isEnabled());
}

TEST_F(SettingsWindowTest, RefusedNotificationsAreSaidAndTheSwitchStaysOn)
{
    FakePermission permission;
    show(&permission);
    open_pane("Reminders");
    auto& on = part<QAbstractButton>("remindersOn");
    auto& denied = part<desktop::NoticeStrip>("remindersDenied");
    on.click();
    EXPECT_FALSE(denied.isVisible());
    permission.answer_(false);
    EXPECT_TRUE(denied.isVisible());
    EXPECT_EQ(denied.accessibleName(),
        "Notifications are off for Quillfern. Turn them on in System Settings › Notifications.");
    EXPECT_TRUE(on.isChecked() && preferences_.values().remindersOn);

    on.click();
    EXPECT_FALSE(denied.isVisible() || preferences_.values().remindersOn);
    permission.answer_(false); // an answer that comes too late
    EXPECT_FALSE(denied.isVisible());
    on.click();
    permission.answer_(true);
    EXPECT_FALSE(denied.isVisible());
    on.click();
    on.click();
    delete window_;
    permission.answer_(false);
}

TEST_F(SettingsWindowTest, WhereNothingCanRemindTheSwitchIsLockedAndTheTimesAreNot)
{
    preferences_.edit([](PreferenceValues& values) { values.remindersOn = true; });
    show(nullptr);
    open_pane("Reminders");
    EXPECT_FALSE(part<QAbstractButton>("remindersOn").isEnabled());
    EXPECT_FALSE(part<QAbstractButton>("remindersOn").isChecked());
    part<QComboBox>("reminderHour").setCurrentIndex(7);
    EXPECT_EQ(kept().reminderHour, 7);
    EXPECT_TRUE(kept().remindersOn) << "what the user has chosen elsewhere stays";
}

TEST_F(SettingsWindowTest, SaysWhenASettingCannotBeKept)
{
    show(nullptr);
    const auto strips = [this] {
        QStringList shown;
        for (const auto* strip : window_->findChildren<desktop::NoticeStrip*>())
            if (strip->isVisible())
                shown.append(strip->accessibleName());
        return shown;
    };
    EXPECT_TRUE(strips().isEmpty());
    folder_.remove();
    QFile in_the_way(folder_.path());
    ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
    part<QComboBox>("fiscalStart").setCurrentIndex(6);
    EXPECT_EQ(strips().size(), 1);
    in_the_way.remove();
}

} // namespace
} // namespace quillfern::app
