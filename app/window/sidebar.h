#pragma once

#include "app/window/sidebar_presentation.h"
#include "desktop/surface.h"

#include <QByteArray>

class QListView;

namespace quillfern::app {

class OrganizationMark;
class SidebarDelegate;
class SidebarModel;

/// The window's source list: whose file it is, and where one can go in it.
class Sidebar : public desktop::Surface {
    Q_OBJECT
public:
    explicit Sidebar(QWidget* parent = nullptr);

    void show_presentation(const SidebarPresentation& presentation);

    /// `png` is the logo as stored; empty or unreadable shows the place where one would stand.
    void set_logo(const QByteArray& png);

    void select(SidebarItem item);
    void set_strip(bool strip);

Q_SIGNALS:
    void chosen(SidebarItem item);

private:
    OrganizationMark* mark_;
    QListView* list_;
    SidebarModel* model_;
    SidebarDelegate* delegate_;
};

} // namespace quillfern::app
