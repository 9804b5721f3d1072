#pragma once

#include "base/decimal.h"
#include "base/record_reader.h"

#include <simdjson.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

/// JSON text as a source of values for base/record_reader.h, over simdjson's On-Demand parser.
///
/// simdjson sees to UTF-8, strings and structure of what is walked. What it leaves open is checked here: values that
/// are skipped are walked too, numbers and literals are held to the grammar, duplicate keys, lone surrogates and more
/// than 512 levels are refused. Include this only where a codec is instantiated: it is a large header.
namespace quillfern::platform {

inline constexpr std::size_t json_depth_limit = 512;

namespace detail {

inline std::string_view without_trailing_blanks(std::string_view token)
{
    const auto end = token.find_last_not_of(" \t\n\r");
    return token.substr(0, end == std::string_view::npos ? 0 : end + 1);
}

/// number = [ minus ] int [ frac ] [ exp ] (RFC 8259, section 6)
bool is_json_number(std::string_view text);

/// UTF-8 never encodes surrogates; they come out of an escaped lone one.
bool holds_surrogate(std::string_view text);

} // namespace detail

/// What a read of one text shares: the parser's position and whether anything was left unwalked.
struct JsonCursor {
    ReadState& state;
    simdjson::ondemand::document& document;
    bool unwalked = false; ///< an unreadable value was forgiven half-way; the whole text is checked once more

    bool malformed(simdjson::error_code error)
    {
        const char* place = nullptr;
        if (document.current_location().get(place))
            place = nullptr; // the text ended
        return state.fail(place, std::string("Malformed JSON: ") + simdjson::error_message(error), Failing::document);
    }
};

class JsonKey {
public:
    JsonKey(simdjson::ondemand::field& field, JsonCursor& cursor)
        : field_(field), raw_(field.key().raw()), cursor_(cursor)
    {
    }

    bool is(std::string_view name) const
    {
        return std::memcmp(raw_, name.data(), name.size()) == 0 && raw_[name.size()] == '"';
    }

    bool is_before(std::string_view name) const
    {
        const int order = std::memcmp(raw_, name.data(), name.size());
        return order < 0;
    }

    /// Unescaped; empty, with the failure in the state, when the escapes are wrong.
    std::string_view text()
    {
        if (!unescaped_) {
            unescaped_ = true;
            if (const auto error = field_.unescaped_key().get(text_))
                cursor_.malformed(error);
            else if (detail::holds_surrogate(text_))
                cursor_.state.fail(place(), "Malformed JSON: a lone surrogate", Failing::document);
        }
        return text_;
    }

    const char* place() const { return raw_; }

private:
    simdjson::ondemand::field& field_;
    const char* raw_;
    JsonCursor& cursor_;
    std::string_view text_;
    bool unescaped_ = false;
};

class JsonValue {
public:
    JsonValue(simdjson::ondemand::value value, JsonCursor& cursor)
        : value_(value), token_(value_.raw_json_token()), cursor_(&cursor)
    {
    }

    ReadState& state() const { return cursor_->state; }
    const char* place() const { return token_.data(); }

    ValueKind kind() const
    {
        switch (token_.front()) {
        case '{':
            return ValueKind::object;
        case '[':
            return ValueKind::array;
        case '"':
            return ValueKind::string;
        case 't':
        case 'f':
            return ValueKind::boolean;
        case 'n':
            return ValueKind::null;
        default:
            return ValueKind::number;
        }
    }

    /// The view holds as long as the text being read.
    bool text(std::string_view& out)
    {
        const std::string_view token = detail::without_trailing_blanks(token_);
        const std::string_view inner = token.substr(1, token.size() < 2 ? 0 : token.size() - 2);
        if (std::memchr(inner.data(), '\\', inner.size()) == nullptr) {
            simdjson::ondemand::raw_json_string raw;
            if (const auto error = value_.get_raw_json_string().get(raw))
                return cursor_->malformed(error);
            out = inner;
            return true;
        }
        if (const auto error = value_.get_string().get(out))
            return cursor_->malformed(error);
        if (detail::holds_surrogate(out))
            return state().fail(place(), "Malformed JSON: a lone surrogate", Failing::document);
        return true;
    }

    bool boolean(bool& out)
    {
        const std::string_view token = detail::without_trailing_blanks(token_);
        out = token == "true";
        return out || token == "false" || malformed_literal();
    }

    /// The number as it is spelled; empty when the spelling is not JSON's.
    std::string_view number_text() const
    {
        const std::string_view token = detail::without_trailing_blanks(token_);
        return detail::is_json_number(token) ? token : std::string_view();
    }

    /// A number with an integral value counts (5.0).
    bool integer(std::int64_t& out)
    {
        if (!check_number())
            return false;
        const std::string_view number = number_text();
        const std::optional<std::int64_t> whole = parse_whole_decimal(number);
        if (!whole)
            return state().fail(place(), "Not a whole number in range: " + std::string(number));
        out = *whole;
        return true;
    }

    bool check_number() { return !number_text().empty() || malformed_literal(); }

    /// Calls f(JsonKey, JsonValue) for each member; stops and returns false when one of them does.
    template <class F>
    bool each_member(F&& f)
    {
        simdjson::ondemand::object object;
        if (!check_depth())
            return false;
        if (const auto error = value_.get_object().get(object))
            return cursor_->malformed(error);
        return each_member_of(object, *cursor_, std::forward<F>(f));
    }

    template <class F>
    bool each_element(F&& f)
    {
        simdjson::ondemand::array array;
        if (!check_depth())
            return false;
        if (const auto error = value_.get_array().get(array))
            return cursor_->malformed(error);
        for (auto element : array) {
            simdjson::ondemand::value value;
            if (const auto error = element.get(value))
                return cursor_->malformed(error);
            if (!f(JsonValue(value, *cursor_)))
                return false;
        }
        return true;
    }

    /// Reads past the value, whatever it is, and checks it.
    bool skip();

    void abandon() { cursor_->unwalked = true; }

    template <class F>
    static bool each_member_of(simdjson::ondemand::object& object, JsonCursor& cursor, F&& f)
    {
        for (auto member : object) {
            simdjson::ondemand::field field;
            if (const auto error = std::move(member).get(field))
                return cursor.malformed(error);
            JsonKey key(field, cursor);
            if (!f(key, JsonValue(field.value(), cursor)) || cursor.state.document_failed())
                return false;
        }
        return true;
    }

private:
    bool malformed_literal() const
    {
        return state().fail(place(), "Malformed JSON: no value is spelled like this", Failing::document);
    }

    bool check_depth() const
    {
        if (state().depth() < json_depth_limit)
            return true;
        return state().fail(place(), "Nested more than 512 levels deep", Failing::document);
    }

    simdjson::ondemand::value value_;
    std::string_view token_;
    JsonCursor* cursor_;
};

/// The document itself, which has to be an object.
class JsonRoot {
public:
    JsonRoot(std::string_view json, JsonCursor& cursor) : json_(json), cursor_(cursor) { }

    ReadState& state() const { return cursor_.state; }
    ValueKind kind() const { return ValueKind::object; }
    const char* place() const { return json_.data(); }

    template <class F>
    bool each_member(F&& f)
    {
        simdjson::ondemand::object object;
        const auto error = cursor_.document.get_object().get(object);
        if (error == simdjson::INCORRECT_TYPE)
            return state().fail(place(), "Expected an object", Failing::document);
        if (error)
            return cursor_.malformed(error);
        if (!JsonValue::each_member_of(object, cursor_, std::forward<F>(f)))
            return false;
        const bool text_ended = cursor_.document.current_location().error() == simdjson::OUT_OF_BOUNDS;
        return text_ended || cursor_.malformed(simdjson::TRAILING_CONTENT);
    }

private:
    std::string_view json_;
    JsonCursor& cursor_;
};

namespace detail {

std::string_view without_byte_order_mark(std::string_view json);

/// Walks the whole text and refuses what skipping would have let through.
bool check_whole(std::string_view padded_json, ReadState& state);

/// Parses and calls f(root, cursor). The text has simdjson's padding behind it.
template <class F>
bool on_root(std::string_view padded_json, ReadState& state, F&& f)
{
    const simdjson::padded_string_view padded(padded_json, padded_json.size() + simdjson::SIMDJSON_PADDING);
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document document;
    if (const auto error = parser.iterate(padded).get(document))
        return state.fail(nullptr, std::string("Malformed JSON: ") + simdjson::error_message(error), Failing::document);
    JsonCursor cursor{state, document};
    JsonRoot root(padded_json, cursor);
    return f(root, cursor);
}

} // namespace detail

/// Reads a whole text into `out`. The parser wants a few spare bytes behind the text: give a string whose capacity has
/// them (json_padding) to spare a copy. A byte-order mark is passed over. On failure the error is in `state`, and `out`
/// is half-read and not to be used.
template <class T>
bool read_json(std::string& json, ReadState& state, T& out)
{
    json.reserve(json.size() + simdjson::SIMDJSON_PADDING);
    const std::string_view text = detail::without_byte_order_mark(json);
    const bool ok = detail::on_root(text, state, [&](JsonRoot& root, JsonCursor& cursor) {
        return read(root, out) && (!cursor.unwalked || detail::check_whole(text, state));
    });
    if (!ok)
        state.locate_error(text);
    return ok;
}

} // namespace quillfern::platform
