#include "desktop/alert.h"
#include "desktop/save_panel.h"
#include "desktop/toast.h"
#include "grants/grant_exporter.h"
#include "window_fixture.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace quillfern::app {
namespace {

/// A window on the sample organization, from which files are saved.
class ExportTest : public WindowTest {
protected:
    ExportTest()
    {
        program_.open_sample();
        window_ = program_.windows().back();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window_));
    }

    template <class Dialog>
    Dialog* dialog(const char* name = nullptr)
    {
        for (auto* candidate : window_->findChildren<Dialog*>(name ? QString::fromLatin1(name) : QString()))
            if (candidate->isVisible())
                return candidate;
        return nullptr;
    }

    QDialog* open_sheet(const char* command)
    {
        window_->findChild<QAction*>(QLatin1String(command))->trigger();
        return dialog<QDialog>("exportSheet");
    }

    /// Goes from the sheet to the panel and answers it.
    void save_as(QDialog* sheet, const QString& path)
    {
        sheet->findChild<QPushButton*>("exportSave")->click();
        auto* panel = dialog<desktop::SavePanel>();
        ASSERT_TRUE(panel);
        panel->selectFile(path);
        QMetaObject::invokeMethod(panel, "accept");
    }

    QByteArray content(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    MainWindow* window_ = nullptr;
};

TEST_F(ExportTest, TheSpreadsheetIsSavedWithItsEndingAndAToastSaysSo)
{
    save_as(open_sheet("exportGrantsCSV"), folder_.filePath("Our grants"));
    EXPECT_EQ(content(folder_.filePath("Our grants.csv")).toStdString(),
        grants::GrantExporter::csv(window_->document().document().file(), Lang::en));
    const auto* toast = window_->findChild<desktop::Toast*>();
    ASSERT_TRUE(toast && toast->isVisible());
    EXPECT_EQ(toast->accessibleName(), "Saved “Our grants.csv”.");
}

TEST_F(ExportTest, TheCalendarHoldsWhatIsTicked)
{
    QDialog* sheet = open_sheet("exportCalendar");
    const auto* result = sheet->findChild<QLabel*>("exportResult");
    EXPECT_EQ(result->text(), "38 dates will be saved.");
    sheet->findChild<QCheckBox*>("includeDrafts")->setChecked(false);
    sheet->findChild<QAbstractButton*>("alertSwitch")->setChecked(false);
    EXPECT_EQ(result->text(), "28 dates will be saved.");
    save_as(sheet, folder_.filePath("dates.ics"));
    const QByteArray text = content(folder_.filePath("dates.ics"));
    EXPECT_EQ(text.count("BEGIN:VEVENT"), 28);
    EXPECT_EQ(text.count("BEGIN:VALARM"), 0);
}

TEST_F(ExportTest, AFileThatIsThereIsOnlyReplacedWhenTheUserSaysSo)
{
    const QString path = folder_.filePath("grants.csv");
    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("mine");
    old.close();
    for (const bool replace : {false, true}) {
        save_as(open_sheet("exportGrantsCSV"), path);
        auto* question = dialog<desktop::Alert>();
        ASSERT_TRUE(question);
        EXPECT_EQ(question->findChild<QLabel*>("alertTitle")->text(), "Replace “grants.csv”?");
        EXPECT_EQ(content(path), "mine");
        if (replace)
            question->accept();
        else
            question->reject();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_TRUE(content(path).startsWith("Grant,Funder,Stage"));
}

TEST_F(ExportTest, WhatCannotBeSavedSaysWhy)
{
    open_sheet("exportGrantsCSV")->findChild<QPushButton*>("exportSave")->click();
    Q_EMIT dialog<desktop::SavePanel>()->path_chosen(folder_.filePath("gone/grants.csv"));
    const auto* alert = dialog<desktop::Alert>();
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->findChild<QLabel*>("alertTitle")->text(), "Couldn’t save “grants.csv”");
    EXPECT_EQ(alert->findChild<QLabel*>("alertMessage")->text(),
        "The folder is not there any more. Choose another one. Nothing was changed.");
}

} // namespace
} // namespace quillfern::app
