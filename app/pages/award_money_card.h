#pragma once

#include "app/pages/award_money.h"
#include "desktop/surface.h"

namespace quillfern::desktop {
class ShareBar;
class TextLabel;
} // namespace quillfern::desktop

namespace quillfern::app {

/// The money of the year's awards as a bar and its legend.
class AwardMoneyCard : public desktop::Card {
    Q_OBJECT
public:
    explicit AwardMoneyCard(QWidget* parent = nullptr);

    void show_money(const AwardMoney& money);

private:
    class Legend;

    desktop::TextLabel* title_;
    desktop::ShareBar* bar_;
    Legend* legend_;
};

} // namespace quillfern::app
