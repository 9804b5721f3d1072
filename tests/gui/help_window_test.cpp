#include "app/help/help_article_view.h"
#include "app/help/help_topic_list.h"
#include "app/help/help_window.h"
#include "app/help/help_writer.h"
#include "app/window/about_dialog.h"
#include "desktop/type.h"
#include "desktop/url_opener.h"
#include "window_fixture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>

namespace quillfern::app {
namespace {

class HelpWindowTest : public WindowTest {
protected:
    static QList<HelpWindow*> help_windows()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QList<HelpWindow*> windows;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* help = qobject_cast<HelpWindow*>(widget))
                windows.append(help);
        return windows;
    }

    HelpWindow& show(HelpTopic topic)
    {
        program_.help_desk().show(topic);
        HelpWindow* help = help_windows().value(0);
        EXPECT_TRUE(help && QTest::qWaitForWindowActive(help));
        return *help;
    }

    static HelpArticleView& article_of(const HelpWindow& help) { return *help.findChild<HelpArticleView*>(); }
    static HelpTopicList& list_of(const HelpWindow& help) { return *help.findChild<HelpTopicList*>(); }
    static QString title_of(const HelpWindow& help) { return article_of(help).document()->firstBlock().text(); }

    static QStringList listed(const HelpWindow& help)
    {
        QStringList titles;
        for (int row = 0; row < list_of(help).count(); ++row)
            if (!list_of(help).item(row)->isHidden())
                titles.append(list_of(help).item(row)->text());
        return titles;
    }
};

TEST_F(HelpWindowTest, F1OpensHelpAndTheMenuChoosesItsTopicInTheSameWindow)
{
    MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({})));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    ASSERT_EQ(help_windows().size(), 1);
    HelpWindow& help = *help_windows().front();
    EXPECT_EQ(title_of(help), "Getting started");
    const std::pair<const char*, const char*> entries[] = {{"helpReportingDates", "Reporting dates"},
        {"helpMotions", "Motions and how votes are counted"}, {"helpImport", "Importing a spreadsheet"},
        {"helpLimits", "What Quillfern Doesn’t Do"}};
    for (const auto& [id, title] : entries) {
        window.findChild<QAction*>(QLatin1String(id))->trigger();
        EXPECT_EQ(title_of(help), QString::fromUtf8(title));
        EXPECT_EQ(list_of(help).currentItem()->text(), QString::fromUtf8(title));
    }
    help.showMinimized();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&help));
    EXPECT_FALSE(help.isMinimized());
    EXPECT_EQ(help_windows().size(), 1);
    EXPECT_EQ(title_of(help), "What Quillfern Doesn’t Do");
}

TEST_F(HelpWindowTest, TheKeyboardGoesFromTheSearchToTheTopicsToTheirLinksAndOut)
{
    HelpWindow& help = show(HelpTopic::start);
    EXPECT_EQ(help.focusWidget(), &list_of(help));
    QTest::keyClick(&list_of(help), Qt::Key_Down);
    EXPECT_EQ(title_of(help), "Reporting dates");
    QTest::keyClick(&list_of(help), Qt::Key_Tab);
    EXPECT_EQ(help.focusWidget(), &article_of(help));
    QTest::keyClick(&article_of(help), Qt::Key_PageDown);
    EXPECT_GT(article_of(help).verticalScrollBar()->value(), 0);
    QTest::keyClick(&article_of(help), Qt::Key_Tab);
    QTest::keyClick(&article_of(help), Qt::Key_Return);
    EXPECT_EQ(title_of(help), "Deadlines and relative dates");
    EXPECT_EQ(article_of(help).verticalScrollBar()->value(), 0);

    auto* search = help.findChild<QLineEdit*>();
    QTest::keyClick(&help, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(help.focusWidget(), search);
    QTest::keyClicks(search, "quorum recusals");
    EXPECT_EQ(listed(help), QStringList({"Motions and how votes are counted"}));
    QTest::keyClick(search, Qt::Key_Down);
    EXPECT_EQ(help.focusWidget(), &list_of(help));
    EXPECT_EQ(title_of(help), "Motions and how votes are counted");
    search->setFocus();
    QTest::keyClicks(search, "x");
    EXPECT_TRUE(listed(help).isEmpty());
    EXPECT_EQ(title_of(help), "Motions and how votes are counted");
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_EQ(listed(help).size(), static_cast<qsizetype>(help_topic_count));
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_TRUE(help_windows().isEmpty());

    QTest::keyClick(&show(HelpTopic::privacy), Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(help_windows().isEmpty());
}

TEST_F(HelpWindowTest, NoArticleIsWiderThanTheEyeFollowsAndNoneIsCutOff)
{
    HelpWindow& help = show(HelpTopic::start);
    for (const int width : {1600, help.minimumWidth()}) {
        help.resize(width, 700);
        QCoreApplication::processEvents();
        for (std::size_t i = 0; i < help_topic_count; ++i) {
            program_.help_desk().show(static_cast<HelpTopic>(i));
            const QTextDocument& document = *article_of(help).document();
            EXPECT_LE(document.size().width(), desktop::scaled(help_widest_text + 2 * help_side_margin));
            EXPECT_LE(document.size().width(), article_of(help).viewport()->width()) << title_of(help).toStdString();
            EXPECT_EQ(article_of(help).horizontalScrollBar()->maximum(), 0) << title_of(help).toStdString();
        }
    }
}

TEST_F(HelpWindowTest, EmailSupportOpensANewMessageOrSaysWhereToWrite)
{
    struct Opener : desktop::UrlOpener {
        Opener(QUrl& seen, bool works) : seen_(seen), works_(works) { }
        bool open(const QUrl& url) override
        {
            seen_ = url;
            return works_;
        }
        QUrl& seen_;
        bool works_;
    };
    MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({})));
    auto* email = window.findChild<QAction*>("emailSupport");
    for (const bool works : {true, false}) {
        QUrl seen;
        program_.help_desk().use(std::make_unique<Opener>(seen, works));
        email->trigger();
        EXPECT_EQ(seen, QUrl("mailto:support@quillfern.example?subject=Quillfern"));
        const auto* message = window.findChild<QLabel*>("alertMessage");
        EXPECT_EQ(message ? message->text() : "", works ? "" : "Write to support@quillfern.example.");
    }
}

TEST_F(HelpWindowTest, AboutSaysWhatTheProgramIsAndWhoseWorkItStandsOn)
{
    MainWindow& window = open(write_package("Pantry.quillfern", file_with_days({})));
    window.findChild<QAction*>("about")->trigger();
    auto* about = window.findChild<AboutDialog*>();
    ASSERT_TRUE(about);
    QStringList lines;
    for (const QLabel* label : about->findChildren<QLabel*>())
        lines.append(label->text());
    EXPECT_TRUE(lines.contains("Grants and the board for small nonprofits, kept on your Mac"));
    EXPECT_TRUE(lines.contains("Not legal advice: check your bylaws and state law."));
    for (const char* name : {"Qt", "ICU", "simdjson", "OpenSSL", "CLI11", "Inter", "Liberation"})
        EXPECT_TRUE(lines.join(' ').contains(QLatin1String(name))) << name;
    QTest::keyClick(about, Qt::Key_Escape);
    EXPECT_FALSE(about->isVisible());
}

} // namespace
} // namespace quillfern::app
