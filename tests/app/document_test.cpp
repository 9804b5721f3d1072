#include "app/document/document.h"

#include <gmock/gmock.h>

namespace quillfern::app {
namespace {

class DocumentTest : public testing::Test {
protected:
    DocumentTest()
    {
        QObject::connect(&document_, &Document::modified_changed, [this](bool modified) { told_.push_back(modified); });
    }

    void name(const char* organization, const char* label = "Rename")
    {
        grants::GrantFile next = document_.file();
        next.org.name = organization;
        document_.edit(QString::fromUtf8(label), next);
    }

    std::string shown() const { return document_.file().org.name; }

    Document document_{new_document({.fiscalStart = 7, .draftLead = 14})};
    std::vector<bool> told_;
};

TEST_F(DocumentTest, ANewOneHasTheDefaultsOfTheUserAndNothingToSave)
{
    EXPECT_EQ(document_.file().org.fiscalYearStartMonth, 7);
    EXPECT_EQ(document_.file().settings.draftLeadDays, 14);
    EXPECT_FALSE(document_.is_modified());
    EXPECT_EQ(document_title(document_.package(), {}), "Untitled");
}

TEST_F(DocumentTest, EachEditIsOneStepWithItsNameAndAnEqualValueIsNone)
{
    name("A");
    name("A", "Again");
    name("B", "Second");
    ASSERT_EQ(document_.undo_stack().count(), 2);
    EXPECT_EQ(document_.undo_stack().undoText(), "Second");
    document_.undo_stack().undo();
    EXPECT_EQ(shown(), "A");
    document_.undo_stack().undo();
    EXPECT_EQ(shown(), "");
    document_.undo_stack().setIndex(2);
    EXPECT_EQ(shown(), "B");
}

TEST_F(DocumentTest, ItIsModifiedWhileItsValueIsNotTheSavedOneHoweverItGotThere)
{
    name("A");
    const QuillfernDocument given_to_the_saver = document_.value();
    name("B");
    document_.set_saved(given_to_the_saver); // typing went on while it was saved
    EXPECT_TRUE(document_.is_modified());
    document_.undo_stack().undo();
    EXPECT_FALSE(document_.is_modified());
    name("C");
    name("A"); // typed back, not undone
    EXPECT_FALSE(document_.is_modified());
    document_.undo_stack().undo();
    EXPECT_TRUE(document_.is_modified());
    EXPECT_THAT(told_, testing::ElementsAre(true, false, true, false, true));
}

TEST_F(DocumentTest, ACopyThatIsNowhereIsModifiedUntilItIsSaved)
{
    document_.set_unsaved();
    EXPECT_TRUE(document_.is_modified());
    document_.set_saved(document_.value());
    EXPECT_FALSE(document_.is_modified());
}

} // namespace
} // namespace quillfern::app
