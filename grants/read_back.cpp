#include "grants/read_back.h"

#include "grants/grant_file_json.h"

#include <algorithm>
#include <future>
#include <string_view>
#include <thread>
#include <vector>

namespace quillfern::grants {
namespace {

constexpr std::size_t smallest_piece = 512 * 1024; ///< bytes; starting a thread for less is not worth it
constexpr std::size_t most_pieces = 4;

// The writer puts one brace a line and escapes line breaks inside texts, so these stand nowhere else.
constexpr std::string_view grants_opening = "\n  \"grants\": [\n";
constexpr std::string_view grants_closing = "\n  ]";
constexpr std::string_view grant_opening = "    {\n";
constexpr std::string_view between_grants = "\n    },\n";

/// The text without the elements of its list of grants, and these in consecutive pieces.
struct Pieces {
    std::string around;
    std::vector<std::string_view> grants; ///< each a run of whole elements, without the comma behind the last
};

std::vector<std::string_view> cut(std::string_view elements)
{
    const std::size_t wanted = std::clamp<std::size_t>(
        elements.size() / smallest_piece, 1, std::min<std::size_t>(most_pieces, std::thread::hardware_concurrency()));
    const std::size_t size = elements.size() / wanted;
    std::vector<std::string_view> pieces;
    while (pieces.size() + 1 < wanted) {
        const std::size_t at = elements.find(between_grants, std::min(size, elements.size()));
        if (at == std::string_view::npos)
            break;
        const std::size_t comma = at + between_grants.size() - 2;
        pieces.push_back(elements.substr(0, comma));
        elements.remove_prefix(comma + 1);
    }
    pieces.push_back(elements);
    return pieces;
}

Pieces split(const std::string& text)
{
    const std::size_t opening = text.find(grants_opening);
    if (opening == std::string::npos) // no grants
        return {text, {}};
    const std::size_t first = opening + grants_opening.size();
    const std::size_t end = std::min(text.find(grants_closing, first), text.size());
    return {text.substr(0, first) + text.substr(end), cut(std::string_view(text).substr(first, end - first))};
}

std::size_t count_of(std::string_view word, std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + word.size()))
        count += at == 0 || text[at - 1] == '\n' ? 1 : 0;
    return count;
}

/// Nothing in a text of ours should need a fresh value; one that does is not equal to what was written.
std::optional<GrantFile> read(std::string text)
{
    auto read = read_grant_file(std::move(text), {[] { return Uuid{}; }, Instant{}});
    if (!read || !read->notes.empty())
        return std::nullopt;
    return std::move(read->file);
}

bool gives(std::string_view piece, std::vector<Shared<Grant>>::const_iterator first, std::size_t count)
{
    std::string text;
    text.reserve(piece.size() + 256);
    text.append("{\"grants\": [").append(piece).append("]}");
    const std::optional<GrantFile> file = read(std::move(text));
    return file && file->grants.size() == count && std::equal(file->grants.begin(), file->grants.end(), first);
}

bool gives_all(const std::vector<std::string_view>& pieces, const std::vector<Shared<Grant>>& grants)
{
    std::vector<std::future<bool>> readings;
    std::size_t first = 0;
    for (const std::string_view piece : pieces) {
        const std::size_t count = count_of(grant_opening, piece);
        if (count > grants.size() - first)
            return false;
        readings.push_back(
            std::async(std::launch::async, gives, piece, grants.begin() + static_cast<std::ptrdiff_t>(first), count));
        first += count;
    }
    bool all = first == grants.size();
    for (std::future<bool>& reading : readings)
        all = reading.get() && all;
    return all;
}

} // namespace

bool reads_back(const std::string& text, const GrantFile& file)
{
    const Pieces pieces = split(text);
    GrantFile expected = in_current_format(file);
    if (!gives_all(pieces.grants, expected.grants))
        return false;
    expected.grants.clear();
    return read(pieces.around) == expected;
}

} // namespace quillfern::grants
