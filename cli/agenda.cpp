#include "grants/agenda.h"

#include "cli/documents.h"
#include "cli/json.h"
#include "cli/options.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "grants/labels.h"

#include <memory>
#include <optional>

namespace quillfern::cli {

using namespace grants;

namespace {

struct Asked {
    std::string path;
    Day today = today_here();
    Lang lang = Lang::en;
    bool all = false;
    bool json = false;
};

constexpr Text done_heading{"Done", "Hecho"};
constexpr Text nothing_due{"Nothing is due.", "No vence nada."};

std::string as_json(const std::vector<AgendaItem>& items, const Day& today)
{
    platform::JsonWriter json;
    json.begin_list();
    for (const AgendaItem& item : items) {
        const Bucket its_bucket = bucket(item.day, today);
        json.next_element();
        write_record(json, item, Extra<Bucket>{"bucket", its_bucket});
    }
    json.end_list();
    return std::move(json).finish();
}

void add_row(TextTable& table, const AgendaItem& item, const std::string& currency, Lang lang)
{
    table.row({display_text(item.day, lang), std::string(label(item.kind, lang)), item.grantTitle, item.detail,
        item.funderName, item.amount ? display_text(*item.amount, currency, lang) : ""});
}

/// What is done first, then the buckets; within each, the agenda's order.
std::string as_text(const std::vector<AgendaItem>& items, const GrantFile& file, const Asked& asked)
{
    TextTable table(
        {TextTable::left, TextTable::left, TextTable::left, TextTable::left, TextTable::left, TextTable::right});
    const auto add_group = [&](std::string_view heading, auto belongs) {
        bool is_first = true;
        for (const AgendaItem& item : items) {
            if (!belongs(item))
                continue;
            if (std::exchange(is_first, false))
                table.heading(heading);
            add_row(table, item, file.org.currencyCode, asked.lang);
        }
    };
    add_group(done_heading(asked.lang), [](const AgendaItem& item) { return item.done; });
    for (const Bucket each : {Bucket::overdue, Bucket::thisWeek, Bucket::next30, Bucket::next90, Bucket::later}) {
        add_group(label(each, asked.lang),
            [&](const AgendaItem& item) { return !item.done && bucket(item.day, asked.today) == each; });
    }
    const std::string text = table.text();
    return text.empty() ? std::string(nothing_due(asked.lang)) + '\n' : text;
}

Answer run(const Asked& asked)
{
    const auto opened = open_organization(asked.path);
    if (!opened)
        return fail(opened.error());
    const GrantFile& file = opened->package.file;
    const std::vector<AgendaItem> items = asked.all ? agenda(file) : open_agenda(file);
    return asked.json ? as_json(items, asked.today) : as_text(items, file, asked);
}

} // namespace

void add_agenda(Verbs verbs)
{
    const auto asked = std::make_shared<Asked>();
    CLI::App& verb =
        verbs.add("agenda", "Print what is due, in the order of the days", [asked] { return run(*asked); });
    add_package(verb, asked->path);
    add_flag(verb, "--all", asked->all, "List what is done, too");
    add_today(verb, asked->today);
    add_lang(verb, asked->lang);
    add_json(verb, asked->json);
}

} // namespace quillfern::cli
