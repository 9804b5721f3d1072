#pragma once

#include "app/window/fiscal_year_choice.h"
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

    void show_fiscal_years(const FiscalYearChoice& choice);
    void show_search(const QString& text);

    /// Puts the keyboard into the search field, ready to type over what is there.
    void focus_search();

    /// Where the keyboard enters the tool bar.
    QWidget* first_button() const;

    /// Enables the buttons whose menu has something that can act.
    void update_buttons();

Q_SIGNALS:
    void fiscal_year_chosen(qint64 year);
    void search_changed(const QString& text);
    void search_left(); ///< Return, or Escape in an empty field: the user turns to what was found

private:
    void add_fiscal_year();
    void add_search();
    QToolButton* add_menu_button(const QString& text, const QString& icon_name, const std::vector<QAction*>& actions);
    void add_stretch();

    std::vector<QToolButton*> menu_buttons_;
    QToolButton* sidebar_button_;
    QComboBox* fiscal_year_;
    FiscalYearChoice fiscal_years_;
    QLineEdit* search_;
};

} // namespace quillfern::app
