#pragma once

#include "app/instance/start_request.h"
#include "app/options.h"

namespace quillfern::app {

class Application;

/// What the options ask for, so that another program can do it as well: with absolute paths, and with the desktop's
/// permission from the environment.
StartRequest request_of(const Options& options);

/// Opens what is asked for, or shows the start window when nothing is.
void open_requested(Application& program, const StartRequest& request);

/// What a program that runs already does for a later start: the same, but instead of a start window it shows the
/// newest document if it has one, and what it shows comes to the front.
void perform_request(Application& program, const StartRequest& request);

} // namespace quillfern::app
