#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillfern::platform {

/// Makes pretty-printed JSON text: two blanks a level, one key a line, forward slashes and characters beyond ASCII as
/// they are. The caller gives keys in the order they should stand in and keeps begin and end in step. It is the sink of
/// base/record_writer.h and is also used by hand:
///
///     JsonWriter json;
///     json.begin_object();
///     json.key("name");
///     json.text("Linden Ferry");
///     json.end_object();
class JsonWriter {
public:
    JsonWriter() = default;

    /// Writes a part of a text, which will stand inside this many brackets.
    explicit JsonWriter(std::size_t level) : level_(level) { }

    void reserve(std::size_t bytes) { text_.reserve(bytes); }

    void begin_object() { begin('{'); }
    void end_object() { end('}'); }
    void begin_list() { begin('['); }
    void end_list() { end(']'); }

    void key(std::string_view name); ///< one that needs no escaping
    void any_key(std::string_view name);
    void next_element() { next_line(0); }

    void text(std::string_view value);
    void plain_text(std::string_view value); ///< text that needs no escaping
    void integer(std::int64_t value);
    void boolean(bool value) { text_ += value ? "true" : "false"; }
    void raw(std::string_view json) { text_ += json; }

    /// The text, ended by a line break.
    std::string finish() &&;

private:
    void begin(char bracket);
    void end(char bracket);
    char* next_line(std::size_t room);
    void append_escaped(std::string_view value);

    std::string text_;
    std::size_t level_ = 0;
    bool empty_ = true; ///< nothing stands yet inside the innermost bracket
};

} // namespace quillfern::platform
