#pragma once

#include "app/pages/award_money.h"
#include "app/pages/today_presentation.h"

#include <QWidget>

class QBoxLayout;
class QScrollArea;
class QStackedWidget;

namespace quillfern::desktop {
class PageHeader;
}

namespace quillfern::app {

class AgendaList;
class AgendaModel;
class AwardMoneyCard;

/// The page that says what is due: the agenda in its buckets.
class TodayPage : public QWidget {
    Q_OBJECT
public:
    explicit TodayPage(QWidget* parent = nullptr);

    void show_presentation(const TodayPresentation& presentation);
    void show_award_money(const AwardMoney& money);

    /// The width of the right column; 0: it goes below the agenda.
    void set_right_column(int width);

    /// Whether the document may be changed.
    void set_actions_offered(bool offered);

Q_SIGNALS:
    /// What the row of this agenda item offers is wanted: see agenda_edit().
    void action_requested(const QString& item_id);

private:
    QWidget* make_scrolled_part();
    QWidget* make_right_column(QWidget* parent);
    void show_facts(const TodayPresentation& presentation);

    desktop::PageHeader* header_;
    QStackedWidget* body_;
    QScrollArea* scroll_ = nullptr;
    AgendaList* list_ = nullptr;
    AgendaModel* model_;
    QBoxLayout* columns_ = nullptr; ///< the agenda and the right column
    QWidget* right_column_ = nullptr;
    AwardMoneyCard* award_money_ = nullptr;
};

} // namespace quillfern::app
