#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quillfern {

/// Finds the next of a few ASCII characters (NUL is none of them), sixteen bytes at a time.
///
///     constexpr ByteSearch ends{',', '\n', '\r'};
///     ends.find("Cold storage,12500.00", 0)   // 12
template <std::size_t Count>
class ByteSearch {
public:
    template <class... C>
    constexpr ByteSearch(C... characters)
    {
        std::size_t i = 0;
        (sought_[i++].fill(characters), ...);
    }

    /// The text's size when there is none at or behind `from`.
    std::size_t find(std::string_view text, std::size_t from) const
    {
        for (; from + block_size <= text.size(); from += block_size)
            if (const std::size_t place = first_in(block_at(text.data() + from)); place < block_size)
                return from + place;
        if (from >= text.size())
            return text.size();
        const std::size_t place = first_in(rest(text, from));
        return place < block_size ? from + place : text.size();
    }

private:
    static constexpr std::size_t block_size = 16;
    // g++ and clang work on all of a vector's elements at once.
    using Block [[gnu::vector_size(block_size)]] = char;
    using Words [[gnu::vector_size(block_size)]] = std::uint64_t;
    static_assert(std::endian::native == std::endian::little, "the first byte of a word is taken for its lowest");

    static Block block_at(const char* bytes)
    {
        Block block;
        std::memcpy(&block, bytes, sizeof block);
        return block;
    }

    static std::uint64_t word_at(const char* bytes)
    {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes, sizeof word);
        return word;
    }

    /// The place of the first sought character; the block's size when there is none.
    std::size_t first_in(Block block) const
    {
        auto equal = block == block_at(sought_[0].data());
        for (std::size_t i = 1; i < Count; ++i)
            equal |= block == block_at(sought_[i].data());
        const auto marks = reinterpret_cast<Words>(equal); // a byte of ones for each sought character
        if (marks[0] != 0)
            return static_cast<std::size_t>(std::countr_zero(marks[0])) / 8;
        return 8 + static_cast<std::size_t>(std::countr_zero(marks[1])) / 8;
    }

    /// The last one to fifteen bytes of the text with zeros behind them, without reading past its end.
    static Block rest(std::string_view text, std::size_t from)
    {
        const std::size_t size = text.size() - from;
        Words words{};
        if (text.size() < 8) {
            std::uint64_t word = 0;
            std::memcpy(&word, text.data() + from, size);
            words[0] = word;
            return reinterpret_cast<Block>(words);
        }
        const std::uint64_t last = word_at(text.data() + text.size() - 8);
        words[0] = size <= 8 ? last >> 8 * (8 - size) : word_at(text.data() + from);
        words[1] = size <= 8 ? 0 : last >> 8 * (16 - size);
        return reinterpret_cast<Block>(words);
    }

    std::array<std::array<char, block_size>, Count> sought_{}; ///< each character in all bytes of a block
};

template <class... C>
ByteSearch(C...) -> ByteSearch<sizeof...(C)>;

} // namespace quillfern
