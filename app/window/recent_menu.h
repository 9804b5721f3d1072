#pragma once

class QMenu;
class QWidget;

namespace quillfern::app {

class Application;

/// Lists the documents that were open last, newest first. Those that are not there any more are greyed; a document is
/// opened above `window`.
void fill_recent_menu(QMenu& menu, Application& application, QWidget& window);

} // namespace quillfern::app
