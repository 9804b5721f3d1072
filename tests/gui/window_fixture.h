#pragma once

#include "app/application.h"
#include "app/document/open_document.h"
#include "app/window/main_window.h"
#include "grants/grant_file_json.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QListView>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

namespace quillfern::app {

/// A running program on September 10, 2026, with a folder for packages.
class WindowTest : public testing::Test {
protected:
    WindowTest()
    {
        program_.preferences().edit([](PreferenceValues& values) { values.welcomeDone = true; });
    }

    QString write_package(const QString& name, const std::string& json)
    {
        const QString path = folder_.filePath(name);
        QDir().mkpath(path);
        QFile file(path + QStringLiteral("/Quillfern.json"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(json));
        return path;
    }

    /// One grant with an application due on each of the days, named A, B, C and so on.
    static std::string file_with_days(const std::vector<grants::Day>& days)
    {
        grants::GrantFile file;
        file.org.name = "Linden Ferry Community Pantry";
        for (std::size_t i = 0; i < days.size(); ++i) {
            grants::Grant grant;
            grant.id.bytes[15] = static_cast<std::uint8_t>(i + 1);
            grant.title = std::string(1, static_cast<char>('A' + i));
            grant.applicationDue = days[i];
            file.grants.emplace_back(grant);
        }
        return grants::write_grant_file(file);
    }

    MainWindow& open(const QString& path)
    {
        program_.open(path, nullptr);
        MainWindow& window = *program_.windows().back();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        return window;
    }

    static QListView& agenda_of(const MainWindow& window)
    {
        return *window.findChild<QListView*>(QStringLiteral("agenda"));
    }

    /// What the agenda reads out, headings and rows in order.
    static QStringList lines_of(const QListView& list)
    {
        QStringList lines;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            lines.append(list.model()->index(row, 0).data(Qt::AccessibleTextRole).toString());
        return lines;
    }

    QTemporaryDir folder_;
    grants::Day today_{2026, 9, 10};
    DocumentSource source_;
    Application program_{Surroundings{.source = source_,
        .clock = [this] { return today_; },
        .state_folder = folder_.filePath(QStringLiteral("state")).toStdString(),
        .settings_file = folder_.filePath(QStringLiteral("settings.conf"))}};
};

} // namespace quillfern::app
