#include "bench/sqlite_peer.h"

#include <cstdio>
#include <cstdlib>

namespace quillfern::bench {
namespace {

void expect(int status, int wanted, sqlite3* database)
{
    if (status == wanted)
        return;
    std::fprintf(stderr, "SQLite: %s\n", sqlite3_errmsg(database));
    std::abort();
}

} // namespace

SqliteDatabase::SqliteDatabase(const char* schema)
{
    expect(sqlite3_open(":memory:", &handle_), SQLITE_OK, handle_);
    expect(sqlite3_exec(handle_, schema, nullptr, nullptr, nullptr), SQLITE_OK, handle_);
}

SqliteDatabase::~SqliteDatabase()
{
    sqlite3_close(handle_);
}

void SqliteDatabase::insert(std::string_view table, std::initializer_list<SqlValue> values)
{
    std::string statement = "INSERT INTO " + std::string(table) + " VALUES (";
    for (std::size_t i = 0; i < values.size(); ++i)
        statement += i == 0 ? "?" : ",?";
    SqliteRows rows(*this, (statement + ")").c_str());
    int place = 0;
    for (const SqlValue& value : values)
        rows.bind(++place, value);
    rows.next();
}

SqliteRows::SqliteRows(const SqliteDatabase& database, const char* query)
{
    expect(sqlite3_prepare_v2(database.handle(), query, -1, &statement_, nullptr), SQLITE_OK, database.handle());
}

SqliteRows::~SqliteRows()
{
    sqlite3_finalize(statement_);
}

void SqliteRows::bind(int place, const SqlValue& value)
{
    int status = SQLITE_OK;
    if (const auto* number = std::get_if<std::int64_t>(&value))
        status = sqlite3_bind_int64(statement_, place, *number);
    else if (const auto* text = std::get_if<std::string>(&value))
        status = sqlite3_bind_text(statement_, place, text->data(), static_cast<int>(text->size()), SQLITE_TRANSIENT);
    expect(status, SQLITE_OK, sqlite3_db_handle(statement_));
}

void SqliteRows::rewind()
{
    sqlite3_reset(statement_);
}

bool SqliteRows::next()
{
    const int status = sqlite3_step(statement_);
    if (status != SQLITE_DONE)
        expect(status, SQLITE_ROW, sqlite3_db_handle(statement_));
    return status == SQLITE_ROW;
}

std::string_view SqliteRows::view(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))) : "";
}

} // namespace quillfern::bench
