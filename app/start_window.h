#pragma once

#include "app/window/app_window.h"

class QVBoxLayout;

namespace quillfern::app {

class RecentDocuments;

/// Shown when the program starts without a document: what can be opened, and what was open last.
class StartWindow : public AppWindow {
    Q_OBJECT
public:
    /// `recent` must outlive the window; null: no recent documents are offered.
    explicit StartWindow(Application& application, RecentDocuments* recent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* make_sheet(QWidget* page);
    QLayout* make_choices(QWidget* sheet);
    QWidget* make_choice(
        std::string_view command, const QString& icon, const QString& title, const QString& line, QWidget* sheet);
    QWidget* make_recent_part(QWidget* sheet);
    void list_recent();

    RecentDocuments* recent_;
    QWidget* recent_part_ = nullptr; ///< hidden while there are none
    QVBoxLayout* recent_rows_ = nullptr;
    QWidget* sheet_ = nullptr;
};

} // namespace quillfern::app
