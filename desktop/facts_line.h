#pragma once

#include "desktop/tokens.h"

#include <QString>
#include <QWidget>

#include <vector>

namespace quillfern::desktop {

/// A stretch of text in one colour.
struct Fact {
    QString text;
    Role role = Role::text2;
    bool strong = false;

    friend bool operator==(const Fact&, const Fact&) = default;
};

/// The one line below a page's title, in which what is overdue stands out.
class FactsLine : public QWidget {
    Q_OBJECT
public:
    explicit FactsLine(QWidget* parent = nullptr);

    void set_facts(std::vector<Fact> facts);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<Fact> facts_;
};

} // namespace quillfern::desktop
