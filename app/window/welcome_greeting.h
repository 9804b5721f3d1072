#pragma once

class QLayout;
class QString;
class QWidget;

namespace quillfern::app {

/// The application's mark, a title and what the program is for.
QLayout* make_greeting(const QString& title, QWidget* parent);

} // namespace quillfern::app
