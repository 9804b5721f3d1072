#include "platform/json_reader.h"

#include <set>

namespace quillfern::platform {
namespace detail {
namespace {

std::size_t digits_from(std::string_view text, std::size_t at)
{
    while (at < text.size() && text[at] >= '0' && text[at] <= '9')
        ++at;
    return at;
}

template <class Value>
bool skip_members(Value& value)
{
    std::set<std::string, std::less<>> keys;
    return value.each_member([&](JsonKey& key, JsonValue member) {
        ReadState& state = value.state();
        const std::string_view name = key.text();
        if (state.document_failed())
            return false;
        if (!keys.emplace(name).second)
            return state.fail(key.place(), "Duplicate key: " + std::string(name), Failing::document);
        state.enter(name);
        if (!member.skip())
            return false;
        state.leave();
        return true;
    });
}

bool skip_elements(JsonValue& value)
{
    std::size_t index = 0;
    return value.each_element([&](JsonValue element) {
        value.state().enter(index++);
        if (!element.skip())
            return false;
        value.state().leave();
        return true;
    });
}

} // namespace

bool is_json_number(std::string_view text)
{
    std::size_t at = text.starts_with('-') ? 1 : 0;
    const std::size_t integer_end = digits_from(text, at);
    if (integer_end == at || (text[at] == '0' && integer_end > at + 1))
        return false;
    at = integer_end;
    if (at < text.size() && text[at] == '.') {
        const std::size_t fraction_end = digits_from(text, at + 1);
        if (fraction_end == at + 1)
            return false;
        at = fraction_end;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-'))
            ++at;
        const std::size_t exponent_end = digits_from(text, at);
        if (exponent_end == at)
            return false;
        at = exponent_end;
    }
    return at == text.size();
}

bool holds_surrogate(std::string_view text)
{
    for (std::size_t at = text.find('\xED'); at != std::string_view::npos; at = text.find('\xED', at + 1))
        if (at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) >= 0xA0)
            return true;
    return false;
}

std::string_view without_byte_order_mark(std::string_view json)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (json.starts_with(mark))
        json.remove_prefix(mark.size());
    return json;
}

bool check_whole(std::string_view padded_json, ReadState& state)
{
    state.leave_to(0);
    return on_root(padded_json, state, [](JsonRoot& root, JsonCursor&) { return skip_members(root); });
}

} // namespace detail

bool JsonValue::skip()
{
    switch (kind()) {
    case ValueKind::object:
        return detail::skip_members(*this);
    case ValueKind::array:
        return detail::skip_elements(*this);
    case ValueKind::string: {
        std::string_view ignored;
        return text(ignored);
    }
    case ValueKind::boolean: {
        bool ignored = false;
        return boolean(ignored);
    }
    case ValueKind::null:
        return detail::without_trailing_blanks(token_) == "null" || malformed_literal();
    case ValueKind::number:
        return check_number();
    }
    return false;
}

} // namespace quillfern::platform
