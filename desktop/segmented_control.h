#pragma once

#include <QAbstractButton>
#include <QStringList>
#include <QWidget>

namespace quillfern::desktop {

/// A few choices side by side of which one holds. The keyboard reaches the chosen one; the arrow keys choose another.
class SegmentedControl : public QWidget {
    Q_OBJECT
public:
    enum class Form { control, row }; ///< a row of a table or a list has less height

    explicit SegmentedControl(const QStringList& texts, QWidget* parent = nullptr, Form form = Form::control);

    int current() const;

    /// Tells nobody: the user did not choose.
    void set_current(int index);

Q_SIGNALS:
    void chosen(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose(int index);

    QList<QAbstractButton*> segments_;
};

} // namespace quillfern::desktop
