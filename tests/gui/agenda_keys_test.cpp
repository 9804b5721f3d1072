#include "window_fixture.h"

#include <QPushButton>

namespace quillfern::app {
namespace {

TEST_F(WindowTest, HomeChoosesTheFirstRowAndTabGoesToItsButtonAndOn)
{
    const MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({{2026, 9, 8}, {2026, 9, 15}})));
    QListView& list = agenda_of(window);
    list.setFocus();
    EXPECT_FALSE(list.selectionModel()->hasSelection());
    QTest::keyClick(&list, Qt::Key_Home);
    EXPECT_EQ(list.selectionModel()->selectedIndexes(), QModelIndexList({list.model()->index(1, 0)}));
    auto* button = list.findChild<QPushButton*>();
    ASSERT_TRUE(button);
    ASSERT_EQ(window.focusWidget(), &list);
    QTest::keyClick(&list, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), button);
    QTest::keyClick(window.focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(window.focusWidget(), &list);
    QTest::keyClick(&list, Qt::Key_Tab);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_NE(window.focusWidget(), &list);
    EXPECT_NE(window.focusWidget(), button);
}

} // namespace
} // namespace quillfern::app
