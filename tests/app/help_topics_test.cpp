#include "app/help/help_search.h"
#include "app/help/help_topics.h"
#include "board/labels.h"
#include "grants/import_fields.h"
#include "grants/labels.h"
#include "grants/summaries.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace quillfern::app {
namespace {

/// The article's words, one text after the other.
std::string words_of(HelpTopic topic)
{
    struct Words {
        std::string operator()(const HelpHeading& heading) const { return std::string(heading.text); }
        std::string operator()(const HelpParagraph& paragraph) const { return std::string(paragraph.text); }
        std::string operator()(const HelpTable& table) const
        {
            std::string text = std::string(table.head.first) + '\n' + std::string(table.head.second);
            for (const auto& [first, second] : table.rows)
                text += '\n' + std::string(first) + ": " + std::string(second);
            return text;
        }
    };
    std::string text;
    for (const HelpBlock& block : help_article(topic).blocks)
        text += std::visit(Words(), block) + '\n';
    return text;
}

TEST(HelpTopics, EachHasATitleAnArticleAndOthersToGoOnTo)
{
    for (std::size_t i = 0; i < help_topic_count; ++i) {
        const auto topic = static_cast<HelpTopic>(i);
        const HelpArticle article = help_article(topic);
        EXPECT_GE(words_of(topic).size(), 300u) << help_title(topic);
        EXPECT_FALSE(article.seeAlso.empty()) << help_title(topic);
        EXPECT_EQ(std::count(article.seeAlso.begin(), article.seeAlso.end(), topic), 0) << help_title(topic);
        EXPECT_EQ(words_of(topic).find('\''), std::string::npos) << help_title(topic) << " has a straight apostrophe";
    }
    EXPECT_EQ(help_title(HelpTopic::start), "Getting started");
    EXPECT_EQ(help_title(HelpTopic::votes), "Motions and how votes are counted");
    EXPECT_EQ(help_title(HelpTopic::portfolio), "Portfolio for consultants");
    EXPECT_EQ(help_title(HelpTopic::notDo), "What Quillfern Doesn’t Do");
}

TEST(HelpTopics, CallThingsWhatTheProgramCallsThem)
{
    std::vector<std::pair<HelpTopic, std::string_view>> said;
    const auto says = [&said](HelpTopic topic, auto last) {
        for (int i = 0; i <= static_cast<int>(last); ++i)
            said.emplace_back(topic, label(static_cast<decltype(last)>(i), Lang::en));
    };
    says(HelpTopic::deadlines, grants::Bucket::later);
    says(HelpTopic::reports, grants::ReportFrequency::monthly);
    says(HelpTopic::agenda, board::AgendaSection::closing);
    says(HelpTopic::actions, board::ActionStatus::dropped);
    says(HelpTopic::minutes, board::MinutesState::approved);
    says(HelpTopic::votes, board::VoteMethod::generalConsent);
    for (const auto field : grants::all_import_fields)
        said.emplace_back(HelpTopic::importing, title(field, Lang::en));
    for (const auto& [topic, words] : said)
        EXPECT_THAT(words_of(topic), testing::HasSubstr(words)) << help_title(topic);
}

TEST(HelpTopics, StateTheOddsByWhichThePipelineIsWeighed)
{
    const std::string text = words_of(HelpTopic::pipeline);
    for (int i = 0; i <= static_cast<int>(grants::Stage::withdrawn); ++i) {
        grants::Grant grant;
        const auto stage = grant.stage = static_cast<grants::Stage>(i);
        const std::string odds = std::to_string(grants::effective_probability(grant)) + "%";
        const std::size_t row = text.find(std::string(label(stage, Lang::en)), text.find("Stage\nChance"));
        ASSERT_NE(row, std::string::npos) << label(stage, Lang::en);
        EXPECT_NE(text.substr(row, text.find('\n', row) - row).find(' ' + odds), std::string::npos)
            << label(stage, Lang::en);
    }
}

TEST(HelpSearch, FindsEveryWordInAnyCaseAnywhereInTheTopic)
{
    EXPECT_TRUE(help_matches(HelpTopic::board, ""));
    EXPECT_TRUE(help_matches(HelpTopic::board, "QUORUM  seats"));
    EXPECT_TRUE(help_matches(HelpTopic::votes, "tie abstentions"));
    EXPECT_TRUE(help_matches(HelpTopic::notDo, "doesn't"));
    EXPECT_FALSE(help_matches(HelpTopic::board, "quorum invoice"));
}

} // namespace
} // namespace quillfern::app
