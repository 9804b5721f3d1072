#include "grants/read_back.h"

#include "grants/grant_file_json.h"

#include <gtest/gtest.h>

#include <string>

namespace quillfern::grants {
namespace {

/// With enough text that it is read in several pieces; texts look like the places between pieces.
GrantFile large_file(std::size_t grant_count)
{
    GrantFile file;
    file.org.name = "\n  \"grants\": [\n";
    for (std::size_t i = 0; i < grant_count; ++i) {
        Grant grant;
        grant.title = "Grant " + std::to_string(i);
        grant.notes = std::string(1000, 'x') + "\n    },\n    {\n  ]";
        file.grants.push_back(std::move(grant));
    }
    return file;
}

TEST(ReadBack, AcceptsWhatWasWritten)
{
    for (const std::size_t count : {0u, 1u, 2u, 3000u})
        EXPECT_TRUE(reads_back(write_grant_file(large_file(count)), large_file(count))) << count;
    GrantFile older = large_file(1);
    older.formatVersion = 1;
    older.board = older.board.with([](board::Board& board) { board.formatVersion = 0; });
    EXPECT_TRUE(reads_back(write_grant_file(older), older));
}

TEST(ReadBack, NoticesADifferenceInAnyPlace)
{
    const GrantFile file = large_file(3000);
    const std::string text = write_grant_file(file);
    const std::size_t places[] = {text.find("Grant 0\""), text.find("Grant 1500\""), text.find("Grant 2999\""),
        text.find("\"USD\""), text.find("\"grants\""), text.find("\n    },\n"), text.size() - 2};
    for (const std::size_t place : places) {
        std::string changed = text;
        changed[place + 1] = changed[place + 1] == '#' ? '%' : '#';
        EXPECT_FALSE(reads_back(changed, file)) << place;
        EXPECT_FALSE(reads_back(text.substr(0, place), file)) << place;
    }
    GrantFile other = file;
    other.grants.pop_back();
    EXPECT_FALSE(reads_back(text, other));
    EXPECT_FALSE(reads_back(write_grant_file(other), file));
}

TEST(ReadBack, RefusesATextThatIsNotUtf8)
{
    GrantFile file = large_file(1);
    file.org.city = "\xFF";
    EXPECT_FALSE(reads_back(write_grant_file(file), file));
}

} // namespace
} // namespace quillfern::grants
