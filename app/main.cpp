#include "app/application.h"
#include "app/early_read.h"
#include "app/first_paint.h"
#include "app/options.h"
#include "app/recovery_offer.h"
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

/// Nothing unsaved may depend on the program coming back, or on somebody being there to answer.
void keep_safe(app::Application& program, app::SessionWatch& session)
{
    using app::SessionWatch;
    const auto put_in_safety = [&program] { program.put_in_safety(); };
    QObject::connect(&session, &SessionWatch::going_to_sleep, &program, put_in_safety);
    QObject::connect(&session, &SessionWatch::session_ending, &program, put_in_safety);
    QObject::connect(&session, &SessionWatch::stop_asked, &program, [&program] {
        program.put_in_safety();
        std::_Exit(0); // without the questions of closing windows; what is not saved is offered at the next start
    });
}

void open_what_was_asked_for(app::Application& program, const app::Options& options)
{
    for (const QString& file : options.files)
        program.open(file, nullptr);
    if (options.sample)
        program.open_sample();
    if (options.files.isEmpty() && !options.sample)
        program.show_start();
}

} // namespace

int main(int argc, char** argv)
{
    name_program();
    const app::Options early = app::read_options(app::arguments_of(argc, argv), app::Strictness::lenient);
    if (!early.text.empty())
        return answer_without_window(early);

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
    keep_safe(program, session);
    // What no eye misses at once waits until the first window is on the screen.
    app::FirstPaint::after(program, [&] {
        if (options.exit_after_paint)
            std::_Exit(0); // what comes after the first paint is not to be measured
        QGuiApplication::setWindowIcon(desktop::application_icon());
        theme.follow_portal();
        session.listen_for_sleep();
        app::offer_recovery(program, QApplication::activeWindow());
    });
    open_what_was_asked_for(program, options);
    return QApplication::exec();
}
