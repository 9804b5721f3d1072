#include "grants/recovery_note.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <utility>
#include <vector>

namespace quillfern::grants {
namespace {

constexpr std::string_view first_line = "quillfern-recovery 1";
constexpr std::string_view last_line = "end";

bool is_plain(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte > 0x20 && byte != '%' && byte != 0x7F;
}

std::string encoded(std::string_view text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (is_plain(c))
            result += c;
        else
            (((result += '%') += digits[byte >> 4]) += digits[byte & 15]);
    }
    return result.empty() ? "%" : result; // so that an empty value is still a word
}

std::optional<std::string> decoded(std::string_view text)
{
    if (text == "%")
        return "";
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            result += text[i];
            continue;
        }
        unsigned value = 0;
        const auto digits = text.substr(i + 1, 2);
        if (digits.size() != 2 || std::from_chars(digits.data(), digits.data() + 2, value, 16).ptr != digits.data() + 2)
            return std::nullopt;
        result += static_cast<char>(value);
        i += 2;
    }
    return result;
}

std::string line(std::initializer_list<std::string_view> words)
{
    std::string result;
    for (const std::string_view word : words) {
        if (result.empty())
            result = word;
        else
            result.append(1, ' ').append(encoded(word));
    }
    return result + '\n';
}

/// The words of a line, decoded; empty when one of them cannot be.
std::vector<std::string> words_of(std::string_view line)
{
    std::vector<std::string> words;
    while (!line.empty()) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        auto word = decoded(line.substr(0, blank));
        if (!word)
            return {};
        words.push_back(*std::move(word));
        line.remove_prefix(std::min(blank + 1, line.size()));
    }
    return words;
}

bool take_line(const std::vector<std::string>& words, RecoveryNote& note)
{
    const auto is = [&](std::string_view key, std::size_t values) {
        return words.size() == values + 1 && words[0] == key;
    };
    if (is("saved", 1)) {
        const auto moment = Instant::parse(words[1]);
        note.info.savedAt = moment.value_or(Instant{});
        return moment.has_value();
    }
    if (is("blob", 2))
        return note.blobs.emplace(words[1], words[2]).second;
    if (is("logo", 1))
        note.logo = words[1];
    else if (is("records", 1))
        note.records = words[1];
    else if (is("path", 1))
        note.info.path = words[1];
    else if (is("title", 1))
        note.info.title = words[1];
    else if (is("base", 1))
        note.info.base = words[1];
    else
        return false;
    return true;
}

} // namespace

std::string recovery_note_text(const RecoveryNote& note)
{
    std::string text = std::string(first_line) + '\n';
    text += line({"records", note.records});
    text += line({"path", note.info.path});
    text += line({"title", note.info.title});
    text += line({"base", note.info.base});
    text += line({"saved", note.info.savedAt.text()});
    for (const auto& [name, file] : note.blobs)
        text += line({"blob", name, file});
    if (note.logo)
        text += line({"logo", *note.logo});
    return text + std::string(last_line) + '\n';
}

std::optional<RecoveryNote> parse_recovery_note(std::string_view text)
{
    RecoveryNote note;
    bool first = true;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::string_view present = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (std::exchange(first, false)) {
            if (present != first_line)
                return std::nullopt;
        } else if (present == last_line) {
            return text.empty() && !note.records.empty() ? std::optional(note) : std::nullopt;
        } else if (!take_line(words_of(present), note)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace quillfern::grants
