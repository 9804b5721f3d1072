#include "app/pages/today_page.h"

#include "app/pages/agenda_delegate.h"
#include "app/pages/agenda_list.h"
#include "app/pages/agenda_model.h"
#include "app/pages/award_money_card.h"
#include "desktop/empty_state.h"
#include "desktop/page_header.h"
#include "desktop/qt_text.h"
#include "desktop/type.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::to_qt;

QWidget* make_empty_state(QWidget* parent)
{
    return new desktop::EmptyState(QStringLiteral("today"), QStringLiteral("Nothing is due"),
        QStringLiteral("Add a grant and its dates; what is due next shows here."), parent);
}

} // namespace

TodayPage::TodayPage(QWidget* parent)
    : QWidget(parent), header_(new desktop::PageHeader(QStringLiteral("Today"), this)), body_(new QStackedWidget(this)),
      model_(new AgendaModel(this))
{
    setObjectName(QStringLiteral("todayPage"));
    body_->addWidget(make_scrolled_part());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header_);
    column->addWidget(body_, 1);
    setFocusProxy(list_);
}

QWidget* TodayPage::make_scrolled_part()
{
    scroll_ = new QScrollArea(body_);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // so that the rows never change their width
    scroll_->viewport()->setAutoFillBackground(false);

    auto* content = new QWidget(scroll_);
    list_ = new AgendaList(content);
    list_->set_agenda(model_);
    connect(list_, &AgendaList::action_requested, this, &TodayPage::action_requested);
    columns_ = new QHBoxLayout;
    columns_->setSpacing(scaled(20));
    columns_->addWidget(list_, 1, Qt::AlignTop);
    columns_->addWidget(make_right_column(content), 0, Qt::AlignTop);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(
        scaled(28), 0, scaled(28) - scroll_->verticalScrollBar()->sizeHint().width(), scaled(22));
    column->addLayout(columns_);
    column->addStretch();
    scroll_->setWidget(content);
    content->setAutoFillBackground(false);
    connect(list_, &AgendaList::wants_in_sight, this, [this](const QRect& row) {
        const QRect place(list_->mapTo(scroll_->widget(), row.topLeft()), row.size());
        scroll_->ensureVisible(place.center().x(), place.center().y(), 0, place.height() / 2 + scaled(40));
    });
    return scroll_;
}

QWidget* TodayPage::make_right_column(QWidget* parent)
{
    right_column_ = new QWidget(parent);
    award_money_ = new AwardMoneyCard(right_column_);
    auto* column = new QVBoxLayout(right_column_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(scaled(16));
    column->addWidget(award_money_);
    return right_column_;
}

void TodayPage::set_right_column(int width)
{
    const bool beside = width > 0;
    columns_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    columns_->setAlignment(right_column_, beside ? Qt::AlignTop : Qt::Alignment());
    columns_->setAlignment(list_, beside ? Qt::AlignTop : Qt::Alignment());
    right_column_->setMinimumWidth(width);
    right_column_->setMaximumWidth(beside ? width : QWIDGETSIZE_MAX);
    // Its first card begins beside the first row of the agenda.
    right_column_->layout()->setContentsMargins(0, beside ? agenda_heading_height() : 0, 0, 0);
}

void TodayPage::show_award_money(const AwardMoney& money)
{
    award_money_->show_money(money);
}

void TodayPage::show_presentation(const TodayPresentation& presentation)
{
    show_facts(presentation);
    list_->show_sections(presentation.sections);
    const bool empty = presentation.sections.empty();
    if (empty && body_->count() == 1)
        body_->addWidget(make_empty_state(body_)); // seldom needed, so not made before
    body_->setCurrentIndex(empty ? 1 : 0);
}

void TodayPage::set_actions_offered(bool offered)
{
    list_->set_actions_offered(offered);
}

void TodayPage::show_facts(const TodayPresentation& presentation)
{
    std::vector<desktop::Fact> facts{{to_qt(presentation.date) + QStringLiteral(" · "), Role::text2}};
    if (!presentation.overdue.empty()) {
        facts.push_back({to_qt(presentation.overdue), Role::danger, true});
        facts.push_back({QStringLiteral(", ")});
    }
    facts.push_back({to_qt(presentation.upcoming)});
    header_->set_facts(std::move(facts));
}

} // namespace quillfern::app
