#include "bench/json_walk.h"

#include <simdjson.h>

#include <cstdlib>

namespace quillfern::bench {
namespace {

std::size_t walk(simdjson::ondemand::value value)
{
    switch (value.type().value_unsafe()) {
    case simdjson::ondemand::json_type::object: {
        std::size_t sum = 0;
        simdjson::ondemand::object object;
        if (value.get_object().get(object))
            return 0;
        for (auto member : object) {
            sum += member.unescaped_key().value_unsafe().size();
            sum += walk(member.value().value_unsafe());
        }
        return sum;
    }
    case simdjson::ondemand::json_type::array: {
        std::size_t sum = 0;
        simdjson::ondemand::array array;
        if (value.get_array().get(array))
            return 0;
        for (auto element : array)
            sum += walk(element.value_unsafe());
        return sum;
    }
    case simdjson::ondemand::json_type::string:
        return value.get_string().value_unsafe().size();
    case simdjson::ondemand::json_type::number:
        return static_cast<std::size_t>(value.get_double().value_unsafe());
    default:
        return value.get_bool().value_unsafe() ? 1 : 0;
    }
}

} // namespace

std::size_t walk_json(const std::string& json)
{
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document document;
    const simdjson::padded_string_view padded(json, json.capacity());
    if (parser.iterate(padded).get(document))
        std::abort();
    return walk(document.get_value().value_unsafe());
}

} // namespace quillfern::bench
