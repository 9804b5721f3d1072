#pragma once

#include "desktop/menu_builder.h"

#include <QToolBar>

class QComboBox;
class QLineEdit;
class QToolButton;

namespace quillfern::app {

/// The tool bar of a document window: the sidebar's button, the File menu's groups New, Export and Print, the fiscal
/// year and the search field.
class WindowToolBar : public QToolBar {
    Q_OBJECT
public:
    WindowToolBar(const desktop::WindowMenus& menus, QWidget* parent);

    void show_fiscal_year(const QString& label);

    /// Where the keyboard enters the tool bar.
    QWidget* first_button() const;

    /// Enables the buttons whose menu has something that can act.
    void update_buttons();

private:
    QToolButton* add_menu_button(const QString& text, const QString& icon_name, const std::vector<QAction*>& actions);
    void add_stretch();

    std::vector<QToolButton*> menu_buttons_;
    QToolButton* sidebar_button_;
    QComboBox* fiscal_year_;
    QLineEdit* search_;
};

} // namespace quillfern::app
