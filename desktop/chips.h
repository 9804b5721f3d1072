#pragma once

#include <QString>
#include <QWidget>

class QPainter;

namespace quillfern::desktop {

enum class ChipTone {
    plain, ///< under way
    done, ///< submitted, received, awarded, carried
    waiting, ///< a draft, on the floor
    failed,
    outline, ///< not started, tabled, withdrawn
};

/// A state in a pill 24 high: a word, and before it an icon or four pips of which `pips` are filled.
struct Chip {
    QString text;
    ChipTone tone = ChipTone::plain;
    QString icon; ///< by name; empty: none
    int pips = 0; ///< 1 to 4; 0: none

    friend bool operator==(const Chip&, const Chip&) = default;
};

QSize chip_size(const Chip& chip);

/// Left-aligned and centred in the height of `area`. On a selected row the pill is the colour of cards, so that it
/// stands out from the row.
void paint_chip(QPainter& painter, const QRect& area, const Chip& chip, bool on_selection = false);

class ChipLabel : public QWidget {
    Q_OBJECT
public:
    explicit ChipLabel(const Chip& chip = {}, QWidget* parent = nullptr);

    void set_chip(const Chip& chip);
    QSize sizeHint() const override { return chip_size(chip_); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Chip chip_;
};

} // namespace quillfern::desktop
