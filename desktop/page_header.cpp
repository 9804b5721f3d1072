#include "desktop/page_header.h"

#include "desktop/text_label.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace quillfern::desktop {

PageHeader::PageHeader(const QString& title, QWidget* parent)
    : QWidget(parent), title_(new TextLabel(title, TextStyle::title, Role::text, this)), facts_(new FactsLine(this)),
      row_(new QHBoxLayout(this))
{
    auto* words = new QVBoxLayout;
    words->setSpacing(scaled(3));
    words->addWidget(title_);
    words->addWidget(facts_);
    row_->setContentsMargins(scaled(28), scaled(20), scaled(28), scaled(10));
    row_->setSpacing(scaled(10));
    row_->addLayout(words, 1);
}

void PageHeader::set_title(const QString& title)
{
    title_->setText(title);
}

void PageHeader::set_facts(std::vector<Fact> facts)
{
    facts_->set_facts(std::move(facts));
}

void PageHeader::add_action(QWidget* action)
{
    row_->addWidget(action);
}

} // namespace quillfern::desktop
