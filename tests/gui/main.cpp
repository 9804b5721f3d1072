#include "desktop/theme.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>

/// Nothing of the user's own settings or session may be read or written by a test.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char* variable :
        {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.path().toUtf8());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setOrganizationName(QStringLiteral("quillfern"));
    QCoreApplication::setApplicationName(QStringLiteral("quillfern"));
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    quillfern::desktop::Theme theme(*qApp, quillfern::desktop::Theme::Choice::light);
    return RUN_ALL_TESTS();
}
