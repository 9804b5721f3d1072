#pragma once

#include "base/record_writer.h"
#include "grants/record_fields.h"
#include "grants/value_text.h"
#include "platform/json_writer.h"

#include <string>
#include <utility>

namespace quillfern::cli {

/// A record, or a list of records, as --json prints it: its own field names as keys, sorted, spelled as in files.
template <class T>
std::string json_text(const T& value)
{
    platform::JsonWriter json;
    write(json, value);
    return std::move(json).finish();
}

} // namespace quillfern::cli
