#include "base/byte_search.h"

#include <gtest/gtest.h>

#include <string>

namespace quillfern {
namespace {

TEST(ByteSearch, FindsTheFirstCharacterAtEveryPlaceOfTextsOfEveryLength)
{
    constexpr ByteSearch search{',', '"', '\n'};
    for (std::size_t size = 0; size < 40; ++size) {
        std::string text(size, '-');
        for (std::size_t i = 0; i < size; ++i)
            text[i] = static_cast<char>("-\xAC\x2D\x2B\x8A\0"[i % 6]); // one bit away from what is sought
        ASSERT_EQ(search.find(text, 0), size);
        for (std::size_t first = 0; first < size; ++first) {
            std::string marked = text;
            marked[first] = ",\"\n"[first % 3];
            marked.back() = ',';
            for (std::size_t from = 0; from <= first; ++from)
                ASSERT_EQ(search.find(marked, from), first) << size << " from " << from;
        }
        ASSERT_EQ(search.find(text + ',', size + 1), size + 1);
    }
}

} // namespace
} // namespace quillfern
