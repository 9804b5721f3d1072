#pragma once

#include "desktop/tokens.h"

#include <QWidget>

namespace quillfern::desktop {

/// A plain area in the colour of a role.
class Surface : public QWidget {
    Q_OBJECT
public:
    explicit Surface(Role fill, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Role fill_;
};

/// A white card with round corners and a hairline frame.
class Card : public QWidget {
    Q_OBJECT
public:
    explicit Card(QWidget* parent = nullptr) : QWidget(parent) { }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillfern::desktop
