#pragma once

#include "desktop/facts_line.h"

#include <QString>
#include <QWidget>

#include <vector>

class QHBoxLayout;

namespace quillfern::desktop {

class TextLabel;

/// The head of a page: its title, a line of facts below, and what can be done with the page at the right.
class PageHeader : public QWidget {
    Q_OBJECT
public:
    explicit PageHeader(const QString& title, QWidget* parent = nullptr);

    void set_title(const QString& title);
    void set_facts(std::vector<Fact> facts);
    void add_action(QWidget* action);

private:
    TextLabel* title_;
    FactsLine* facts_;
    QHBoxLayout* row_;
};

} // namespace quillfern::desktop
