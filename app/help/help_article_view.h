#pragma once

#include "app/help/help_topics.h"

#include <QTextBrowser>

class QTextTable;

namespace quillfern::app {

/// Shows one help topic as running text that can be selected, with its tables as cards and links to related topics.
class HelpArticleView : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpArticleView(QWidget* parent = nullptr);

    void show_topic(HelpTopic topic);

Q_SIGNALS:
    void topic_chosen(HelpTopic topic);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void write();
    void follow(const QString& name);
    void paint_card(QPainter& painter, const QTextTable& table) const;

    HelpTopic topic_ = HelpTopic::start;
};

} // namespace quillfern::app
