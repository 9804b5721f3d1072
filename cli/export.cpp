#include "cli/verbs.h"

namespace quillfern::cli {

void add_export(Verbs verbs)
{
    const Verbs kinds = verbs.group("export", "Write the package, or a part of it, to another file");
    add_export_package(kinds);
    add_export_board(kinds);
    add_export_csv(kinds);
    add_export_ics(kinds);
    add_export_template(kinds);
}

} // namespace quillfern::cli
