#pragma once

#include "app/pages/funders_presentation.h"

#include <QWidget>

class QBoxLayout;

namespace quillfern::desktop {
class Card;
class StatTiles;
class TableCard;
class TableView;
class TextLabel;
} // namespace quillfern::desktop

namespace quillfern::app {

/// One funder's record: who it is and its figures, how to reach it, its grants.
class FunderRecordView : public QWidget {
    Q_OBJECT
public:
    explicit FunderRecordView(QWidget* parent = nullptr);

    void show_record(const FunderRecord& record);
    desktop::TableView& grants() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* make_head();
    void show_lines(const FunderRecord& record);
    void arrange_lines();

    desktop::TextLabel* name_;
    desktop::TextLabel* line_;
    desktop::StatTiles* tiles_;
    desktop::Card* lines_card_;
    QBoxLayout* lines_; ///< contact and giving, beside or below each other
    desktop::TableCard* table_;
    FunderRecord shown_;
};

} // namespace quillfern::app
