#pragma once

#include <QString>
#include <QWidget>

class QPushButton;

namespace quillfern::desktop {

/// What a page shows when it has nothing to list: an icon, a heading and one line, a little above the middle.
class EmptyState : public QWidget {
    Q_OBJECT
public:
    EmptyState(const QString& icon_name, const QString& heading, const QString& line, QWidget* parent = nullptr);

    /// Adds the one button below; the caller connects it.
    QPushButton* add_button(const QString& text);
};

} // namespace quillfern::desktop
