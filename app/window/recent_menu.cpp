#include "app/window/recent_menu.h"

#include "app/application.h"

#include <QMenu>
#include <QPointer>

namespace quillfern::app {

void fill_recent_menu(QMenu& menu, Application& application, QWidget& window)
{
    RecentDocuments& recent = application.recent_documents();
    for (const RecentDocument& document : recent.listed()) {
        QAction* entry = menu.addAction(QString(document.label).replace(QLatin1Char('&'), QLatin1String("&&")));
        entry->setEnabled(!document.missing);
        entry->setToolTip(document.path);
        QObject::connect(entry, &QAction::triggered, &window,
            [&application, &window, path = document.path] { application.open(path, &window); });
    }
    if (!recent.paths().isEmpty())
        menu.addSeparator();
    QAction* clear = menu.addAction(QStringLiteral("Clear Menu"));
    clear->setObjectName(QStringLiteral("clearRecent"));
    clear->setEnabled(!recent.paths().isEmpty());
    QObject::connect(clear, &QAction::triggered, &recent, &RecentDocuments::clear);
}

} // namespace quillfern::app
