#include "app/window/page_stack.h"

#include "app/pages/all_grants_page.h"
#include "app/pages/award_money.h"
#include "app/pages/funders_page.h"
#include "app/pages/pipeline_page.h"
#include "app/pages/today_page.h"

#include <QApplication>

namespace quillfern::app {

PageStack::PageStack(WindowModel& model, QWidget* parent)
    : QStackedWidget(parent), model_(model), today_(new TodayPage(this))
{
    addWidget(today_);
}

void PageStack::show_file(const grants::GrantFile& file, const WindowState& state)
{
    setCurrentWidget(draw_selected(file, state));
}

QWidget* PageStack::draw_selected(const grants::GrantFile& file, const WindowState& state)
{
    if (Page* page = page_of(state.selection)) {
        page->show_file(file, state);
        return page;
    }
    today_->show_presentation(today_presentation(file, state.today));
    today_->show_award_money(award_money(file, state.today, state.fiscalYear));
    return today_;
}

/// Null for the Today page, which is no page like the others.
Page* PageStack::page_of(SidebarItem item)
{
    if (const auto made = others_.find(item); made != others_.end())
        return made->second;
    Page* page = nullptr;
    if (item == SidebarItem::pipeline)
        page = new PipelinePage(model_, this);
    else if (item == SidebarItem::grants)
        page = new AllGrantsPage(model_, this);
    else if (item == SidebarItem::funders)
        page = new FundersPage(model_, this);
    else
        return nullptr;
    addWidget(page);
    return others_[item] = page;
}

void PageStack::focus_page()
{
    currentWidget()->setFocus(Qt::OtherFocusReason);
}

bool PageStack::has_keyboard() const
{
    const QWidget* focus = window()->focusWidget();
    return focus && isAncestorOf(focus);
}

} // namespace quillfern::app
