#include "base/uuid.h"

#include <gtest/gtest.h>

namespace quillfern {
namespace {

TEST(Uuid, EitherCaseIsReadAndUpperCaseIsWritten)
{
    const auto lower = Uuid::parse("0f8fad5b-d9cb-469f-a165-70867728950e");
    const auto mixed = Uuid::parse("0F8fAD5B-D9CB-469F-a165-70867728950E");
    ASSERT_TRUE(lower);
    EXPECT_EQ(lower, mixed);
    EXPECT_EQ(std::hash<Uuid>()(*lower), std::hash<Uuid>()(*mixed));
    EXPECT_EQ(lower->text(), "0F8FAD5B-D9CB-469F-A165-70867728950E");
    EXPECT_EQ(lower->lower_text(), "0f8fad5b-d9cb-469f-a165-70867728950e");
    EXPECT_EQ(Uuid().text(), "00000000-0000-0000-0000-000000000000");
}

TEST(Uuid, OnlyTheCanonicalFormIsRead)
{
    for (const std::string_view text : {"", "0F8FAD5BD9CB469FA16570867728950E",
             "{0F8FAD5B-D9CB-469F-A165-70867728950E}", "0F8FAD5B-D9CB-469F-A165-70867728950",
             "0F8FAD5B-D9CB-469F-A165-70867728950EE", "0F8FAD5B-D9CB-469F-A165-70867728950G",
             "0F8FAD5B+D9CB-469F-A165-70867728950E", "-F8FAD5B-D9CB-469F-A165-70867728950E",
             "0F8FAD5-BD9CB-469F-A165-70867728950E", "é8FAD5B-D9CB-469F-A165-70867728950E"})
        EXPECT_EQ(Uuid::parse(text), std::nullopt) << text;
}

} // namespace
} // namespace quillfern
