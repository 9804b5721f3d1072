#include "cli/verbs.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace quillfern::cli {

CLI::App& Verbs::add(const std::string& name, const std::string& description, Action action)
{
    CLI::App* verb = parent_.add_subcommand(name, description);
    verb->callback([&chosen = chosen_, action = std::move(action)] { chosen = action; });
    return *verb;
}

Verbs Verbs::group(const std::string& name, const std::string& description)
{
    CLI::App* group = parent_.add_subcommand(name, description);
    group->require_subcommand(1);
    return {*group, chosen_};
}

void add_all_verbs(Verbs verbs)
{
    add_check(verbs);
    add_agenda(verbs);
    add_summary(verbs);
    add_board(verbs);
    add_reports(verbs);
    add_sample(verbs);
    add_export(verbs);
    add_table(verbs);
}

} // namespace quillfern::cli
