#include "app/window/close_window_action.h"

#include <QApplication>
#include <QDialog>

namespace quillfern::app {

void CloseWindowAction::run(QWidget* key)
{
    for (QDialog* sheet : key->findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly))
        if (sheet->isVisible() && sheet->isModal()) {
            sheet->reject();
            return;
        }
    key->close();
}

} // namespace quillfern::app
