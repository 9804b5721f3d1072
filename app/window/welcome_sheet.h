#pragma once

#include "desktop/sheet.h"

namespace quillfern::desktop {
class ChoiceRow;
}

namespace quillfern::app {

/// What the welcome sheet can do beside opening the sample.
struct WelcomeOffers {
    bool importCSV = false;
    bool importBoard = false;
    bool emptyFile = true; ///< the window below it holds one to begin with; otherwise it shows what the user opened
};

/// What a new user may begin with, over the first window. However it is left, it is closed before it tells, so that
/// what follows may open a sheet of its own; `finished` comes in every case.
class WelcomeSheet : public desktop::Sheet {
    Q_OBJECT
public:
    WelcomeSheet(const WelcomeOffers& offers, QWidget* parent);

Q_SIGNALS:
    void sample_chosen();
    void import_csv_chosen();
    void import_board_chosen();
    void dismissed(); ///< the user goes on with the window below

protected:
    void showEvent(QShowEvent* event) override;

private:
    using Chosen = void (WelcomeSheet::*)();

    QWidget* add_row(const QString& icon, const QString& title, const QString& line, Chosen chosen);
    void add_rows(const WelcomeOffers& offers);
    void add_foot(bool empty_file);
};

} // namespace quillfern::app
