#include "grants/written_grants.h"

#include "grants/grant_file_json.h"

#include <gtest/gtest.h>

#include <string>

namespace quillfern::grants {
namespace {

GrantFile file_of(std::size_t grant_count)
{
    GrantFile file;
    for (std::size_t i = 0; i < grant_count; ++i) {
        Grant grant;
        grant.title = "Grant " + std::to_string(i);
        grant.notes = std::string(1000, 'x') + ",\n    {\n  \"grants\": [\n  ]";
        file.grants.push_back(std::move(grant));
    }
    return file;
}

void retitle(Shared<Grant>& grant, const char* title)
{
    grant = grant.with([&](Grant& changed) { changed.title = title; });
}

TEST(WrittenGrants, GiveTheTextOfTheFileAfterEveryEdit)
{
    GrantFile file;
    WrittenGrants written;
    const auto expect_whole_text = [&](const char* after) {
        const std::string text = written.text_of(file);
        EXPECT_EQ(text, write_grant_file(file)) << after;
        EXPECT_TRUE(written.reads_back(text, file)) << after;
    };
    expect_whole_text("nothing");
    file = file_of(400);
    expect_whole_text("many at once");
    retitle(file.grants[200], "Cold storage");
    expect_whole_text("a change");
    std::swap(file.grants.front(), file.grants.back());
    expect_whole_text("another order");
    file.grants.push_back(file.grants[7]);
    expect_whole_text("one node twice");
    file.grants.erase(file.grants.begin(), file.grants.begin() + 3);
    expect_whole_text("a deletion");
    file.org.name = "Linden Ferry";
    file.grants.resize(1);
    expect_whole_text("all but one deleted");
    file.grants.clear();
    expect_whole_text("no grant left");
}

TEST(WrittenGrants, NoticeADifferenceInProvedTextToo)
{
    GrantFile file = file_of(40);
    WrittenGrants proved;
    ASSERT_TRUE(proved.reads_back(proved.text_of(file), file));
    retitle(file.grants[20], "Cold storage");
    const std::string text = proved.text_of(file);
    for (const char* spot :
        {"Grant 0\"", "Cold storage", "Grant 39\"", "\"USD\"", "\"grants\"", ",\n    {", "\n  ],\n"}) {
        std::string changed = text;
        char& byte = changed[text.find(spot) + 1];
        byte = byte == '#' ? '%' : '#';
        WrittenGrants known = proved;
        EXPECT_FALSE(known.reads_back(changed, file)) << spot;
        EXPECT_FALSE(known.reads_back(text.substr(0, text.find(spot)), file)) << spot;
    }
    GrantFile fewer = file;
    fewer.grants.pop_back();
    EXPECT_FALSE(WrittenGrants(proved).reads_back(text, fewer));
}

TEST(WrittenGrants, StartAfreshAfterATextThatDidNotReadBack)
{
    GrantFile file = file_of(2);
    file.org.city = "\xFF"; // not UTF-8: unreadable JSON
    WrittenGrants written;
    EXPECT_FALSE(written.reads_back(written.text_of(file), file));
    file.org.city = "Tacoma";
    EXPECT_TRUE(written.reads_back(written.text_of(file), file));
}

} // namespace
} // namespace quillfern::grants
