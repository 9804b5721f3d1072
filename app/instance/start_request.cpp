#include "app/instance/start_request.h"

#include <algorithm>
#include <cstdint>

namespace quillfern::app {
namespace {

// Greeting, the length of the rest as four bytes (lowest first), then fields that end with a zero byte each: the
// token, "sample" or nothing, and the files. The greeting's number goes up when an older program could not understand
// a newer one: an update may replace the program while it runs.
constexpr std::string_view greeting = "quillfern start 1\n";
constexpr std::size_t length_bytes = 4;
constexpr std::string_view sample_word = "sample";

std::string length_text(std::size_t length)
{
    std::string text;
    for (std::size_t i = 0; i < length_bytes; ++i)
        text += static_cast<char>(length >> (8 * i) & 0xff);
    return text;
}

std::size_t length_of(std::string_view text)
{
    std::size_t length = 0;
    for (std::size_t i = 0; i < length_bytes; ++i)
        length |= static_cast<std::size_t>(static_cast<std::uint8_t>(text[i])) << (8 * i);
    return length;
}

/// Without a last field that has no end.
std::vector<std::string> fields_of(std::string_view text)
{
    std::vector<std::string> fields;
    for (std::size_t end = text.find('\0'); end != std::string_view::npos; end = text.find('\0')) {
        fields.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return fields;
}

ReadStartRequest read_fields(std::string_view text)
{
    constexpr std::size_t fields_before_files = 2;
    std::vector<std::string> fields = fields_of(text);
    if (!text.ends_with('\0') || fields.size() < fields_before_files || fields.size() > fields_before_files + most_files
        || (!fields[1].empty() && fields[1] != sample_word))
        return {Completeness::malformed, {}};
    StartRequest request{.files = {fields.begin() + fields_before_files, fields.end()},
        .sample = !fields[1].empty(),
        .activationToken = fields[0]};
    if (!std::ranges::all_of(request.files, [](const std::string& file) { return file.starts_with('/'); }))
        return {Completeness::malformed, {}};
    return {Completeness::complete, std::move(request)};
}

} // namespace

std::string write_start_request(const StartRequest& request)
{
    std::string fields = request.activationToken + '\0';
    if (request.sample)
        fields += sample_word;
    fields += '\0';
    for (const std::string& file : request.files)
        fields += file + '\0';
    if (request.files.size() > most_files || fields.size() > most_request_bytes)
        return {};
    return std::string(greeting) + length_text(fields.size()) + fields;
}

ReadStartRequest read_start_request(std::string_view bytes)
{
    const std::size_t greeted = std::min(bytes.size(), greeting.size());
    if (bytes.substr(0, greeted) != greeting.substr(0, greeted))
        return {Completeness::malformed, {}};
    if (bytes.size() < greeting.size() + length_bytes)
        return {};
    bytes.remove_prefix(greeting.size());
    const std::size_t length = length_of(bytes);
    bytes.remove_prefix(length_bytes);
    if (length > most_request_bytes || bytes.size() > length)
        return {Completeness::malformed, {}};
    return bytes.size() < length ? ReadStartRequest() : read_fields(bytes);
}

} // namespace quillfern::app
