#include "app/keep_safe.h"

#include "app/application.h"
#include "app/session_watch.h"

#include <cstdlib>

namespace quillfern::app {

void keep_safe(Application& program, SessionWatch& session)
{
    const auto put_in_safety = [&program] { program.put_in_safety(); };
    QObject::connect(&session, &SessionWatch::going_to_sleep, &program, put_in_safety);
    QObject::connect(&session, &SessionWatch::session_ending, &program, put_in_safety);
    QObject::connect(&session, &SessionWatch::stop_asked, &program, [&program] {
        program.put_in_safety();
        std::_Exit(0); // without the questions of closing windows; what is not saved is offered at the next start
    });
}

} // namespace quillfern::app
