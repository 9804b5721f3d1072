#pragma once

#include "base/read_notes.h"

#include <string_view>

/// What the program says beside its answer: one line each on standard error, so that JSON on standard output stays
/// JSON. Texts come from files too; their control characters, which would give the terminal orders, do not reach it.
namespace quillfern::cli {

void print_remark(std::string_view text); ///< quillfern-cli: The disk is full.
void print_note(std::string_view note); ///< quillfern-cli: note: org.mission: the default stands in for it
void print_notes(const ReadNotes& notes);

} // namespace quillfern::cli
