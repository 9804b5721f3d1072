#include "app/application.h"
#include "app/early_read.h"
#include "app/first_paint.h"
#include "app/instance/single_instance.h"
#include "app/instance/start_server.h"
#include "app/keep_safe.h"
#include "app/options.h"
#include "app/recovery_offer.h"
#include "app/requested_start.h"
#include "app/session_watch.h"
#include "desktop/early_fonts.h"
#include "desktop/focus_ring.h"
#include "desktop/icons.h"
#include "desktop/theme.h"
#include "desktop/undo_keys.h"
#include "platform/state_folder.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace quillfern;

void name_program()
{
    QCoreApplication::setOrganizationName(QStringLiteral("quillfern"));
    QCoreApplication::setApplicationName(QStringLiteral("quillfern"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLFERN_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillfern"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.harrowgate.quillfern"));
}

int answer_without_window(const app::Options& options)
{
    std::fputs(options.text.c_str(), options.exit_status == 0 ? stdout : stderr);
    return options.exit_status;
}

} // namespace

int main(int argc, char** argv)
{
    name_program();
    const app::Options early = app::read_options(app::arguments_of(argc, argv), app::Strictness::lenient);
    if (!early.text.empty())
        return answer_without_window(early);

    app::SingleInstance instance;
    if (early.shareable && instance.claim(app::request_of(early)) == app::StartRole::handedOver)
        return 0;
    const std::jthread fonts = desktop::read_fonts_early();
    app::EarlyRead source(early);
    // The menu bar stands in its window; asking the desktop for another place would cost a round trip at every start.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication application(argc, argv); // takes the toolkit's own options out of the arguments
    const app::Options options = app::read_options(QCoreApplication::arguments(), app::Strictness::strict);
    if (!options.text.empty())
        return answer_without_window(options);

    desktop::Theme theme(application, desktop::scheme_choice(options.scheme));
    desktop::FocusRing focus_ring(&application);
    desktop::UndoKeys undo_keys(&application);
    app::Application program(
        app::Surroundings{.source = source, .clock = options.clock(), .state_folder = platform::state_folder()});
    app::SessionWatch session;
    app::keep_safe(program, session);
    // What no eye misses at once waits until the first window is on the screen.
    app::FirstPaint::after(program, [&] {
        if (options.exit_after_paint)
            std::_Exit(0); // what comes after the first paint is not to be measured
        QGuiApplication::setWindowIcon(desktop::application_icon());
        theme.follow_portal();
        session.listen_for_sleep();
        app::offer_recovery(program, program.front());
    });
    app::open_requested(program, app::request_of(options));
    const app::StartServer later_starts(
        instance, [&program](const app::StartRequest& request) { app::perform_request(program, request); });
    return QApplication::exec();
}
