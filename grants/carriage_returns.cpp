#include "grants/carriage_returns.h"

#include "grants/grant_file_json.h"
#include "platform/json_reader.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace quillfern::grants {

namespace {

/// Walks the JSON text rather than the records: the board's texts are found wherever its own format has them.
struct CarriageReturnSearch {
    ReadState& state;

    void look(std::string_view text)
    {
        if (text.find('\r') != std::string_view::npos)
            state.note("the text holds a carriage return");
    }

    bool members(auto& object)
    {
        return object.each_member([this](auto key, platform::JsonValue member) {
            state.enter(key.text());
            look(key.text());
            const bool walked = walk(member);
            state.leave();
            return walked;
        });
    }

    bool elements(platform::JsonValue& list)
    {
        std::size_t index = 0;
        return list.each_element([&](platform::JsonValue element) {
            state.enter(index++);
            const bool walked = walk(element);
            state.leave();
            return walked;
        });
    }

    bool walk(platform::JsonValue& value)
    {
        switch (value.kind()) {
        case ValueKind::object:
            return members(value);
        case ValueKind::array:
            return elements(value);
        case ValueKind::string: {
            std::string_view text;
            const bool read = value.text(text);
            look(text);
            return read;
        }
        default:
            return value.skip();
        }
    }
};

bool read(platform::JsonRoot& root, CarriageReturnSearch& search)
{
    return search.members(root);
}

} // namespace

ReadNotes texts_with_carriage_returns(const GrantFile& file)
{
    const FreshValues none_needed;
    ReadState state(none_needed);
    CarriageReturnSearch search{state};
    std::string json = write_grant_file(file);
    platform::read_json(json, state, search);
    return std::move(state.notes);
}

} // namespace quillfern::grants
