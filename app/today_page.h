#pragma once

#include "app/today_presentation.h"

#include <QWidget>

class QScrollArea;
class QStackedWidget;

namespace quillfern::desktop {
class PageHeader;
}

namespace quillfern::app {

class AgendaList;
class AgendaModel;

/// The page that says what is due: the agenda in its buckets.
class TodayPage : public QWidget {
    Q_OBJECT
public:
    explicit TodayPage(QWidget* parent = nullptr);

    void show_presentation(const TodayPresentation& presentation);

private:
    QWidget* make_scrolled_part();
    void show_facts(const TodayPresentation& presentation);

    desktop::PageHeader* header_;
    QStackedWidget* body_;
    QScrollArea* scroll_ = nullptr;
    AgendaList* list_ = nullptr;
    AgendaModel* model_;
};

} // namespace quillfern::app
