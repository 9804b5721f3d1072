#include "desktop/alert.h"
#include "desktop/notice_strip.h"
#include "desktop/scrim.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gmock/gmock.h>

namespace quillfern::desktop {
namespace {

QPushButton* button(const QWidget& widget, const QString& text)
{
    for (auto* candidate : widget.findChildren<QPushButton*>())
        if (candidate->text() == text)
            return candidate;
    return nullptr;
}

/// A window that asks, and a record of what was answered.
class AlertTest : public testing::Test {
protected:
    AlertTest()
    {
        window_.resize(960, 600);
        window_.show();
    }

    AlertChoice answer(const QString& text, ButtonKind kind)
    {
        return {text, kind, [this, text] { answers_.append(text); }};
    }

    Alert* ask(std::vector<AlertChoice> choices)
    {
        return choose({"This file was changed by another program", "What should happen?", {}},
            {"warning", IconTile::Tone::warn, std::move(choices)}, &window_, [this] { answers_.append("cancelled"); });
    }

    qsizetype scrims(const QWidget& window) const { return window.findChildren<Scrim*>().size(); }

    QWidget window_;
    QStringList answers_;
};

TEST_F(AlertTest, TheAnswerIsTheChoiceThatWasMade)
{
    using Do = void (*)(Alert&);
    const std::pair<Do, const char*> cases[] = {
        {[](Alert& alert) { button(alert, "Reload")->click(); }, "Reload"},
        {[](Alert& alert) { button(alert, "Delete")->click(); }, "Delete"},
        {[](Alert& alert) { button(alert, "Cancel")->click(); }, "cancelled"},
        {[](Alert& alert) { QTest::keyClick(&alert, Qt::Key_Escape); }, "cancelled"},
        {[](Alert& alert) { QTest::keyClick(&alert, Qt::Key_Return); }, "Keep Both"},
        {[](Alert& alert) { alert.close(); }, "cancelled"},
    };
    for (const auto& [act, expected] : cases) {
        answers_.clear();
        Alert* alert = ask({answer("Keep Both", ButtonKind::primary), answer("Reload", ButtonKind::normal),
            answer("Delete", ButtonKind::destructive)});
        act(*alert);
        EXPECT_EQ(answers_, QStringList(expected));
    }
}

TEST_F(AlertTest, ReturnCancelsWhenTheOnlyChoicesTakeSomethingAway)
{
    QTest::keyClick(ask({answer("Delete", ButtonKind::destructive)}), Qt::Key_Return);
    EXPECT_EQ(answers_, QStringList("cancelled"));
}

TEST_F(AlertTest, ADestructiveChoiceStandsApartAtTheLeftAndThePrimaryOneLast)
{
    Alert* alert = ask({answer("Save…", ButtonKind::primary), answer("Delete", ButtonKind::destructive)});
    EXPECT_LT(button(*alert, "Delete")->x(), button(*alert, "Cancel")->x());
    EXPECT_LT(button(*alert, "Cancel")->x(), button(*alert, "Save…")->x());
    alert->close();
}

TEST_F(AlertTest, AnotherAlertMayFollowFromTheAnswer)
{
    QPointer<Alert> second;
    Alert* first = choose({"First", {}, {}},
        {{}, {},
            {{"Go on", ButtonKind::primary,
                [&] {
                    second = show_alert({"Second", {}, {}}, &window_);
                }}}},
        &window_);
    button(*first, "Go on")->click();
    ASSERT_TRUE(second);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(second);
    EXPECT_EQ(scrims(window_), 1);
    second->close();
    EXPECT_EQ(scrims(window_), 0);
}

TEST_F(AlertTest, TheWindowIsShadedOnceWhileAnyAlertIsOpen)
{
    Alert* first = show_alert({"First", {}, {}}, &window_);
    Alert* second = show_alert({"Second", {}, {}}, &window_);
    Alert* above_the_second = show_alert({"Third", {}, {}}, second);
    EXPECT_EQ(window_.findChildren<Scrim*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    const auto* scrim = window_.findChild<Scrim*>({}, Qt::FindDirectChildrenOnly);
    window_.resize(1100, 700);
    EXPECT_EQ(scrim->geometry(), window_.rect());
    above_the_second->close();
    first->close();
    EXPECT_EQ(scrims(window_), 1);
    delete second; // as when its window goes away
    EXPECT_EQ(scrims(window_), 0);
}

TEST_F(AlertTest, AnAlertStandsInTheMiddleOfTheUpperPartOfItsWindow)
{
    window_.setGeometry(20, 30, 760, 600);
    const Alert* alert = ask({answer("Reload", ButtonKind::normal)});
    const QPoint corner = alert->pos() - window_.mapToGlobal(QPoint());
    EXPECT_NEAR(corner.x() + alert->width() / 2, window_.width() / 2, 1);
    EXPECT_NEAR(corner.y(), (window_.height() - alert->height()) / 3, 1);
    const_cast<Alert*>(alert)->close();
}

TEST(NoticeStrip, WrapsItsSentenceBesideItsButtonsInANarrowWindow)
{
    QWidget page;
    auto* column = new QVBoxLayout(&page);
    auto* strip = new NoticeStrip(NoticeStrip::Tone::warn, "warning",
        "This file was changed by another program while it was open here. Your changes are kept apart until you "
        "decide.",
        &page);
    for (const char* text : {"Keep Both", "Reload", "Save As…"})
        strip->add_button(text);
    column->addWidget(strip);
    column->addStretch();
    page.resize(1600, 400);
    page.show();
    const int one_line = strip->height();
    page.resize(700, 400);
    QCoreApplication::sendPostedEvents();
    EXPECT_GT(strip->height(), one_line + 10);
    for (const auto* button : strip->findChildren<QPushButton*>()) {
        EXPECT_TRUE(strip->rect().contains(button->geometry()));
        EXPECT_GE(button->width(), button->sizeHint().width());
    }
    EXPECT_FALSE(strip->findChild<QToolButton*>());
    strip->make_closable();
    strip->findChild<QToolButton*>()->click();
    EXPECT_FALSE(strip->isVisible());
}

} // namespace
} // namespace quillfern::desktop
