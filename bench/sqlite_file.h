#pragma once

#include "bench/sqlite_peer.h"
#include "grants/grant_file.h"

/// An organization file in normalised, indexed tables, and its agenda as a query.
namespace quillfern::bench {

extern const char* const file_schema;

/// The columns of an agenda item and its rank on a day, in no order. Wrap it to sort or to group.
extern const char* const agenda_rows;

void fill(SqliteDatabase& db, const grants::GrantFile& file);

} // namespace quillfern::bench
