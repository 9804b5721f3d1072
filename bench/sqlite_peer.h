#pragma once

#include "grants/day.h"
#include "grants/money.h"

#include <sqlite3.h>

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// An in-memory SQLite database to measure derivations against. Whatever SQLite refuses ends the program: a peer that
/// half-works would make a wrong ratio.
namespace quillfern::bench {

using SqlValue = std::variant<std::monostate, std::int64_t, std::string>;

inline SqlValue sql(const std::optional<grants::Day>& day)
{
    return day ? SqlValue(day->days_since_epoch()) : SqlValue();
}

inline SqlValue sql(const std::optional<grants::Money>& amount)
{
    return amount ? SqlValue(amount->cents) : SqlValue();
}

class SqliteDatabase {
public:
    explicit SqliteDatabase(const char* schema);
    ~SqliteDatabase();
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    void insert(std::string_view table, std::initializer_list<SqlValue> values);
    sqlite3* handle() const { return handle_; }

private:
    sqlite3* handle_ = nullptr;
};

/// The rows of one prepared query.
class SqliteRows {
public:
    SqliteRows(const SqliteDatabase& database, const char* query);
    ~SqliteRows();
    SqliteRows(const SqliteRows&) = delete;
    SqliteRows& operator=(const SqliteRows&) = delete;

    void bind(int place, const SqlValue& value); ///< `place` counts from 1
    void rewind();
    bool next();

    bool is_null(int column) const { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }
    std::int64_t integer(int column) const { return sqlite3_column_int64(statement_, column); }
    std::string_view view(int column) const;
    std::string text(int column) const { return std::string(view(column)); }

private:
    sqlite3_stmt* statement_ = nullptr;
};

} // namespace quillfern::bench
