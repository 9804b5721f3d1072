#include "cli/remarks.h"
#include "cli/verbs.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <string>
#include <vector>

/// quillfern-cli: exit status 0 is done, 1 refused, 2 a wrong command line. A refusal is one line on standard error.
namespace quillfern::cli {

constexpr int refused_status = 1;
constexpr int wrong_command_line_status = 2;

/// A full disk behind standard output is a refusal like any other: half an answer must not look like a whole one.
static int print_answer(const std::string& text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0)
        return 0;
    print_remark("The answer could not be written.");
    return refused_status;
}

/// The library complains of a missing verb before a misspelt one.
static std::string what_is_wrong(const CLI::App& app, const CLI::ParseError& error)
{
    const std::vector<std::string> not_understood = app.remaining(true);
    if (dynamic_cast<const CLI::RequiredError*>(&error) == nullptr)
        return error.what();
    return not_understood.empty() ? error.what() : "Not understood: " + not_understood.front();
}

static int run(int argc, char** argv)
{
    CLI::App app("The deadlines, reports and files of a grants organization, without a window.", "quillfern-cli");
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "VERB");
    app.get_formatter()->label("Subcommands", "Verbs");
    app.set_version_flag("--version", "quillfern-cli " QUILLFERN_VERSION);
    Action chosen;
    add_all_verbs(Verbs(app, chosen));
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& help_or_version) {
        return app.exit(help_or_version);
    } catch (const CLI::ParseError& error) {
        print_remark(what_is_wrong(app, error) + " (quillfern-cli --help says more)");
        return wrong_command_line_status;
    }
    const Answer answer = chosen();
    if (answer)
        return print_answer(*answer);
    print_remark(answer.error());
    return refused_status;
}

} // namespace quillfern::cli

int main(int argc, char** argv)
{
    return quillfern::cli::run(argc, argv);
}
