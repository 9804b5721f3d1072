#include "app/recovery_offer.h"
#include "app/window/notices.h"
#include "grants/recovery_store.h"
#include "tests/gui/window_fixture.h"

#include <QPushButton>

namespace quillfern::app {
namespace {

class RecoveryOfferTest : public WindowTest {
protected:
    /// What a program that is no more had of the document, as its window showed it then.
    void leave_snapshot(const MainWindow& window, const char* name)
    {
        grants::OrgPackage package = window.document().document().package();
        package.file.org.name = name;
        grants::AttachmentBytes files = *package.attachments;
        files.emplace("new.txt", platform::Blob(std::string("attached")));
        if (package.file.org.name != window.document().document().file().org.name)
            package.attachments = std::move(files);
        grants::RecoverySlot slot(program_.storage().recovery_folder());
        ASSERT_TRUE(slot.write(package, window.document().disk().recovery_info(package, {1000})).ok());
    }

    void recover()
    {
        offer_recovery(program_, nullptr);
        for (QWidget* widget : QApplication::topLevelWidgets())
            for (QPushButton* button : widget->findChildren<QPushButton*>())
                if (button->isVisible() && button->text() == QLatin1String("Recover"))
                    return button->click();
        FAIL() << "nothing is offered";
    }

    std::size_t left() { return grants::RecoverySlot::find(program_.storage().recovery_folder()).size(); }

    QString path_ = write_package(QStringLiteral("Pantry.quillfern"), file_with_days({{2026, 9, 15}}));
};

TEST_F(RecoveryOfferTest, AnOpenDocumentThatTheChangesBuildOnTakesThemAsAStep)
{
    MainWindow& window = open(path_);
    leave_snapshot(window, "Recovered");
    recover();
    ASSERT_EQ(program_.windows().size(), 1);
    OpenDocument& document = window.document();
    EXPECT_EQ(document.title(), "Recovered");
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_FALSE(document.saves_itself()) << "the file is as it was until the user saves";
    EXPECT_EQ(**document.document().package().attachments->at("new.txt").read(), "attached");
    EXPECT_EQ(left(), 0u) << "still held, and not free for others";
    document.document().undo_stack().undo();
    EXPECT_EQ(document.title(), "Linden Ferry Community Pantry");
    document.document().undo_stack().redo();
    document.save(OpenDocument::Asked::byUser);
    document.disk().finish();
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(**document.document().package().attachments->at("new.txt").read(), "attached");
    EXPECT_EQ(left(), 0u);
}

TEST_F(RecoveryOfferTest, WhatTheFileHasGoneBeyondOpensBesideIt)
{
    leave_snapshot(open(path_), "Recovered");
    grants::GrantFile later;
    later.org.name = "Later";
    write_package(QStringLiteral("Pantry.quillfern"), grants::write_grant_file(later));
    ASSERT_TRUE(program_.windows().back()->document().reload());
    recover();
    ASSERT_EQ(program_.windows().size(), 2);
    EXPECT_EQ(program_.windows().front()->document().title(), "Later");
    const OpenDocument& recovered = program_.windows().back()->document();
    EXPECT_EQ(recovered.title(), "Recovered");
    EXPECT_FALSE(recovered.disk().is_named());
    ASSERT_TRUE(notice_for(recovered));
    EXPECT_EQ(notice_for(recovered)->buttons.size(), 1u) << "there is nothing saved to revert to";
    EXPECT_EQ(**recovered.document().package().attachments->at("new.txt").read(), "attached");
}

TEST_F(RecoveryOfferTest, WhatWasSavedAfterAllIsNoChange)
{
    MainWindow& window = open(path_);
    leave_snapshot(window, "Linden Ferry Community Pantry");
    recover();
    EXPECT_EQ(program_.windows().size(), 1);
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_TRUE(window.document().saves_itself());
    EXPECT_EQ(left(), 0u);
}

} // namespace
} // namespace quillfern::app
