#include "grants/read_back.h"

#include "grants/grant_file_json.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <optional>
#include <string_view>
#include <thread>
#include <vector>

namespace quillfern::grants {
namespace {

/// Bytes of a piece. What a small piece decodes to stays in the processor's cache and its memory is used again for the
/// next one, which makes reading back in small pieces faster than in one go even on one core.
constexpr std::size_t piece_size = 128 * 1024;
constexpr unsigned most_readers = 4;

// The writer puts one brace a line and escapes line breaks inside texts, so these stand nowhere else.
constexpr std::string_view grants_opening = "\n  \"grants\": [\n";
constexpr std::string_view grants_closing = "\n  ],\n  \"org\": {\n"; ///< keys are sorted
constexpr std::string_view grant_opening = "\n    {\n"; ///< the first grant of a piece has no line break before it
constexpr std::string_view between_grants = "\n    },\n";

/// The text without the elements of its list of grants, and these in consecutive pieces.
struct Pieces {
    std::string around;
    std::vector<std::string_view> grants; ///< each a run of whole elements, without the comma behind the last
};

std::vector<std::string_view> cut(std::string_view elements)
{
    std::vector<std::string_view> pieces;
    while (elements.size() > piece_size) {
        const std::size_t at = elements.find(between_grants, piece_size);
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
    const std::size_t end = std::max(first, std::min(text.rfind(grants_closing), text.size()));
    return {text.substr(0, first) + text.substr(end), cut(std::string_view(text).substr(first, end - first))};
}

/// memmem skips ahead where std::string_view::find stops at each blank of the indentation.
std::size_t count_of_grants(std::string_view piece)
{
    std::size_t count = piece.starts_with('\n') ? 0 : 1;
    while (const void* found = memmem(piece.data(), piece.size(), grant_opening.data(), grant_opening.size())) {
        ++count;
        const auto at = static_cast<std::size_t>(static_cast<const char*>(found) - piece.data());
        piece.remove_prefix(at + grant_opening.size());
    }
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

/// A piece and the grants that it has to give.
struct Expectation {
    std::string_view piece;
    std::vector<Shared<Grant>>::const_iterator first;
    std::size_t count;
};

bool holds(const Expectation& expectation)
{
    std::string text;
    text.reserve(expectation.piece.size() + 256);
    text.append("{\"grants\": [").append(expectation.piece).append("]}");
    const std::optional<GrantFile> file = read(std::move(text));
    return file && file->grants.size() == expectation.count
        && std::equal(file->grants.begin(), file->grants.end(), expectation.first);
}

/// Absent when the pieces do not hold as many grants as there are.
std::optional<std::vector<Expectation>> expectations(
    const std::vector<std::string_view>& pieces, const std::vector<Shared<Grant>>& grants)
{
    std::vector<Expectation> all;
    std::size_t first = 0;
    for (const std::string_view piece : pieces) {
        const std::size_t count = count_of_grants(piece);
        if (count > grants.size() - first)
            return std::nullopt;
        all.push_back({piece, grants.begin() + static_cast<std::ptrdiff_t>(first), count});
        first += count;
    }
    return first == grants.size() ? std::optional(std::move(all)) : std::nullopt;
}

/// Asking for the number of cores reads a system file, which costs more than reading back a small piece.
std::size_t readers_for(std::size_t pieces)
{
    return pieces < 2 ? pieces : std::min<std::size_t>({pieces, std::thread::hardware_concurrency(), most_readers});
}

bool gives_all(const std::vector<std::string_view>& pieces, const std::vector<Shared<Grant>>& grants)
{
    const auto all = expectations(pieces, grants);
    if (!all)
        return false;
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> fine = true;
    const auto read_pieces = [&] {
        for (std::size_t i = next++; i < all->size() && fine; i = next++)
            if (!holds((*all)[i]))
                fine = false;
    };
    {
        std::vector<std::jthread> others;
        for (std::size_t i = 1, readers = readers_for(all->size()); i < readers; ++i)
            others.emplace_back(read_pieces);
        read_pieces();
    }
    return fine;
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
