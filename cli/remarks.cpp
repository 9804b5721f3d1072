#include "cli/remarks.h"

#include "platform/display_width.h"

#include <cstdio>
#include <string>

namespace quillfern::cli {

void print_remark(std::string_view text)
{
    std::fprintf(stderr, "quillfern-cli: %s\n", platform::on_one_line(text).c_str());
}

void print_note(std::string_view note)
{
    print_remark("note: " + std::string(note));
}

void print_notes(const ReadNotes& notes)
{
    for (const std::string& note : notes)
        print_note(note);
}

} // namespace quillfern::cli
