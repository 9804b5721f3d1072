#pragma once

namespace quillfern::app {

class Application;
class SessionWatch;

/// Nothing unsaved depends on the program coming back, or on somebody being there to answer: before the computer sleeps
/// and when the session ends everything is written down, and a signal that stops the program stops it only after that.
void keep_safe(Application& program, SessionWatch& session);

} // namespace quillfern::app
