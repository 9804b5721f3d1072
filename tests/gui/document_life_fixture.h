#pragma once

#include "app/document/open_document.h"
#include "app/window/document_notice.h"
#include "app/window/window_requests.h"
#include "desktop/alert.h"
#include "grants/org_package.h"
#include "tests/gui/window_fixture.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillfern::app {

/// Drives the File menu as a user does, and looks at the disk afterwards.
class DocumentLifeTest : public WindowTest {
protected:
    DocumentLifeTest() { settle(); }

    ~DocumentLifeTest() override
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (qobject_cast<QDialog*>(widget))
                widget->close();
        settle();
    }

    static void settle()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    MainWindow& open_pantry(const QString& name = QStringLiteral("Pantry.quillfern"))
    {
        path_ = write_package(name, file_with_days({{2026, 9, 15}}));
        return open(path_);
    }

    static void rename_organization(MainWindow& window, const char* name)
    {
        grants::GrantFile next = window.document().document().file();
        next.org.name = name;
        window.requests().edit(QStringLiteral("Rename"), next);
    }

    static void give(MainWindow& window, const char* command)
    {
        auto* action = window.findChild<QAction*>(QString::fromLatin1(command));
        ASSERT_TRUE(action) << command;
        ASSERT_TRUE(action->isEnabled()) << command;
        action->trigger();
    }

    static bool is_enabled(const MainWindow& window, const char* command)
    {
        return window.findChild<QAction*>(QString::fromLatin1(command))->isEnabled();
    }

    static std::string name_on_disk(const QString& path)
    {
        const auto opened = grants::read_package(path.toStdString());
        return opened ? opened->package.file.org.name : "(unreadable)";
    }

    template <class Widget>
    static Widget* shown()
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<Widget*>(widget); found && found->isVisible())
                return found;
        return nullptr;
    }

    static auto how_many_dialogs()
    {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        return std::count_if(widgets.begin(), widgets.end(),
            [](QWidget* widget) { return widget->isVisible() && qobject_cast<QDialog*>(widget); });
    }

    /// Presses a button of the alert or sheet that is open.
    static void answer(const char* text)
    {
        auto* dialog = shown<QDialog>();
        ASSERT_TRUE(dialog) << text;
        for (QPushButton* button : dialog->findChildren<QPushButton*>())
            if (button->text() == QString::fromUtf8(text)) {
                button->click();
                return settle();
            }
        FAIL() << "no button " << text;
    }

    static QString alert_title()
    {
        auto* alert = shown<desktop::Alert>();
        return alert ? alert->findChild<QLabel*>("alertTitle")->text() : QString();
    }

    static void choose_path(const QString& path)
    {
        auto* panel = shown<QFileDialog>();
        ASSERT_TRUE(panel);
        panel->selectFile(path);
        panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(panel, "accept");
        settle();
    }

    static void wait_saved(MainWindow& window)
    {
        window.document().disk().finish();
        settle();
    }

    static QStringList notice_buttons(const MainWindow& window)
    {
        QStringList texts;
        for (const QPushButton* button : window.findChild<DocumentNotice*>()->findChildren<QPushButton*>())
            texts.append(button->text());
        return texts;
    }

    static void press_notice(MainWindow& window, const char* text)
    {
        for (QPushButton* button : window.findChild<DocumentNotice*>()->findChildren<QPushButton*>())
            if (button->text() == QString::fromUtf8(text)) {
                button->click();
                return settle();
            }
        FAIL() << "no button " << text;
    }

    /// What a synchronised folder does: another program writes the package in its own way.
    void write_from_outside(const char* name)
    {
        grants::GrantFile file;
        file.org.name = name;
        write_package(QFileInfo(path_).fileName(), grants::write_grant_file(file));
    }

    QString path_;
};

} // namespace quillfern::app
