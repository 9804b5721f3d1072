#pragma once

#include "desktop/tokens.h"
#include "desktop/type.h"

#include <QLabel>

namespace quillfern::desktop {

/// A label in one of the styles of type and the colour of a role, which follows the scheme. Its text is plain text.
class TextLabel : public QLabel {
    Q_OBJECT
public:
    TextLabel(const QString& text, TextStyle style, Role role, QWidget* parent = nullptr);

    void set_role(Role role);

    /// Lets the user select and copy the text, with the keyboard too.
    void make_selectable();

protected:
    void changeEvent(QEvent* event) override;

private:
    void take_color();

    Role role_;
};

} // namespace quillfern::desktop
