#pragma once

#include "base/result.h"

#include <functional>
#include <string>

namespace CLI {
class App;
}

/// The verbs of the command line.
///
/// Each verb is one file with one function that adds it: the function makes the subcommand, binds its options
/// (cli/options.h) and says what runs when the verb is called. A verb makes its whole answer before any of it is
/// printed, so that a refusal prints nothing but its reason:
///
///     void add_count(Verbs verbs)
///     {
///         auto asked = std::make_shared<Asked>();
///         CLI::App& verb = verbs.add("count", "Count the grants", [asked] { return count(*asked); });
///         add_package(verb, asked->path);
///     }
///
/// add_all_verbs() lists them; there a new verb takes one line.
namespace quillfern::cli {

/// What the verb prints, or the reason for refusing it, a sentence for a person.
using Answer = Result<std::string, std::string>;
using Action = std::function<Answer()>;

/// Where verbs are added: the program itself, or a verb that groups others.
class Verbs {
public:
    Verbs(CLI::App& parent, Action& chosen) : parent_(parent), chosen_(chosen) { }

    /// `action` becomes the chosen one when the command line names this verb.
    CLI::App& add(const std::string& name, const std::string& description, Action action);

    Verbs group(const std::string& name, const std::string& description);

private:
    CLI::App& parent_;
    Action& chosen_;
};

void add_all_verbs(Verbs verbs);

void add_agenda(Verbs verbs);
void add_board(Verbs verbs);
void add_check(Verbs verbs);
void add_export(Verbs verbs);
void add_export_board(Verbs verbs);
void add_export_csv(Verbs verbs);
void add_export_ics(Verbs verbs);
void add_export_package(Verbs verbs);
void add_export_template(Verbs verbs);
void add_reports(Verbs verbs);
void add_sample(Verbs verbs);
void add_summary(Verbs verbs);
void add_table(Verbs verbs);

} // namespace quillfern::cli
