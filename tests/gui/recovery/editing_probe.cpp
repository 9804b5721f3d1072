// editing_probe edit STATE (PACKAGE | -) PACE: edits a document, or a new one, until it is killed, and prints the
// number of each edit as soon as it is made, with the time. editing_probe recover STATE: prints what the program would
// give back. PACE is `real`; `fast`; or one of the sabotaged ones, `never` and `late`.
#include "app/application.h"
#include "app/document/open_document.h"
#include "app/keep_safe.h"
#include "app/recovery_offer.h"
#include "app/session_watch.h"
#include "app/window/main_window.h"
#include "desktop/alert.h"
#include "desktop/theme.h"
#include "grants/org_package.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <random>

namespace {

using namespace quillfern;
using namespace quillfern::app;

Pace pace_named(const std::string& name)
{
    using std::chrono::hours;
    using std::chrono::milliseconds;
    if (name == "real")
        return {};
    if (name == "never")
        return {hours(1), hours(1), hours(1)};
    if (name == "late")
        return {milliseconds(2000), milliseconds(2000), milliseconds(6000)};
    // Twenty times faster than a user's, so that many crashes fit into a test.
    return {milliseconds(100), milliseconds(500), milliseconds(1500)};
}

long long milliseconds_now()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// Edits in bursts with pauses between them, as people do.
class Editor : public QObject {
public:
    explicit Editor(MainWindow& window) : window_(window)
    {
        timer_.setSingleShot(true);
        connect(&timer_, &QTimer::timeout, this, &Editor::edit);
        timer_.start(1);
    }

private:
    void edit()
    {
        grants::OrgPackage next = window_.document().document().package();
        next.file.org.name = std::to_string(++edits_);
        if (edits_ % 10 == 0) {
            grants::AttachmentBytes files = *next.attachments;
            files.insert_or_assign("note-" + std::to_string(edits_) + ".txt",
                platform::Blob("Attached with edit " + std::to_string(edits_)));
            next.attachments = std::move(files);
        }
        window_.document().document().edit(QStringLiteral("Edit"), next);
        std::printf("%lld %lld\n", edits_, milliseconds_now());
        std::fflush(stdout);
        timer_.start(std::uniform_int_distribution(0, 9)(random_) == 0 ? 250 : 15);
    }

    MainWindow& window_;
    QTimer timer_;
    std::mt19937 random_{std::random_device()()};
    long long edits_ = 0;
};

void print_recovered(const Application& program)
{
    for (const MainWindow* window : program.windows()) {
        const grants::OrgPackage& package = window->document().document().package();
        std::size_t readable = 0;
        for (const auto& [name, blob] : *package.attachments)
            readable += blob.read().ok() ? 1 : 0;
        std::printf("%s %zu %zu\n", package.file.org.name.c_str(), package.attachments->size(), readable);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    QCoreApplication::setOrganizationName(QStringLiteral("quillfern"));
    QCoreApplication::setApplicationName(QStringLiteral("quillfern"));
    QApplication application(argc, argv);
    desktop::Theme theme(application, desktop::Theme::Choice::light);
    DocumentSource source;
    const std::string state = argv[2];
    Application program(Surroundings{.source = source,
        .clock =
            [] {
                return grants::Day{2026, 9, 10};
            },
        .state_folder = state,
        .pace = pace_named(argc > 4 ? argv[4] : "fast"),
        .settings_file = QString::fromStdString(state + "/settings.conf")});
    SessionWatch session;
    keep_safe(program, session);
    program.preferences().edit([](PreferenceValues& values) { values.welcomeDone = true; });
    if (argv[1] == std::string("recover")) {
        offer_recovery(program, nullptr);
        for (QWidget* widget : QApplication::topLevelWidgets())
            for (QPushButton* button : widget->findChildren<QPushButton*>())
                if (button->text() == QLatin1String("Recover"))
                    button->click();
        QCoreApplication::processEvents();
        print_recovered(program);
        std::fflush(stdout);
        std::_Exit(0); // as if the power failed: what was given back must be given back again
    }
    if (argv[3] == std::string("-"))
        program.new_document();
    else
        program.open(QString::fromLocal8Bit(argv[3]), nullptr);
    const Editor editor(*program.windows().back());
    return QApplication::exec();
}
