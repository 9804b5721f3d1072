#pragma once

class QWidget;

namespace quillfern::app {

class Application;

/// Offers what a crash has left unsaved, above `asking` (which may be null). Nothing is done when there is nothing.
void offer_recovery(Application& application, QWidget* asking);

} // namespace quillfern::app
