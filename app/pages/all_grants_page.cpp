#include "app/pages/all_grants_page.h"

#include "app/pages/grant_cells.h"
#include "desktop/empty_state.h"
#include "desktop/page_header.h"
#include "desktop/qt_text.h"
#include "desktop/table_card.h"
#include "desktop/type.h"
#include "grants/labels.h"

#include <QComboBox>
#include <QHeaderView>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

namespace quillfern::app {
namespace {

using desktop::Role;
using desktop::scaled;
using desktop::TableCell;
using desktop::TableColumn;
using desktop::to_qt;

constexpr int stage_count = 7;

std::vector<TableColumn> columns()
{
    using enum TableColumn::Content;
    return {
        {QStringLiteral("Grant")},
        {QStringLiteral("Stage"), words, Qt::AlignLeft, 173},
        {QStringLiteral("Asked"), figures, Qt::AlignRight, 115, 1},
        {QStringLiteral("Awarded"), figures, Qt::AlignRight, 112, 2},
        {QStringLiteral("Next date"), figures, Qt::AlignLeft, 190},
        {QStringLiteral("Owner"), words, Qt::AlignLeft, 155, 3},
    };
}

desktop::TableRow table_row(const GrantRow& row)
{
    return {row_id(row.id), to_qt(row.spoken),
        {title_cell(row.title, row.funder), stage_cell(row.stage), figure_cell(row.asked),
            figure_cell(row.awarded, Role::text, true), next_date_cell(row.next), {.text = to_qt(row.owner)}}};
}

TableCell total(const std::string& text)
{
    return {.text = to_qt(text), .strong = true};
}

} // namespace

AllGrantsPage::AllGrantsPage(WindowModel& model, QWidget* parent)
    : Page(parent), model_(model), header_(new desktop::PageHeader(QStringLiteral("All Grants"), this)),
      stages_(new QComboBox(this)), body_(new QStackedWidget(this)), table_(new desktop::TableCard(columns(), body_))
{
    setObjectName(QStringLiteral("allGrantsPage"));
    make_stage_filter();
    table_->view().setAccessibleName(QStringLiteral("Grants"));
    auto* listed = new QWidget(body_);
    auto* list_column = new QVBoxLayout(listed);
    list_column->setContentsMargins(scaled(28), 0, scaled(28), scaled(22));
    list_column->addWidget(table_);
    list_column->addStretch();
    body_->addWidget(listed);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header_);
    column->addWidget(body_, 1);
    setFocusProxy(table_);
    connect(table_->view().horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &AllGrantsPage::show_facts);
}

void AllGrantsPage::make_stage_filter()
{
    stages_->setObjectName(QStringLiteral("stageFilter"));
    stages_->setAccessibleName(QStringLiteral("Stage"));
    stages_->addItem(QStringLiteral("All stages"));
    for (int stage = 0; stage < stage_count; ++stage)
        stages_->addItem(to_qt(label(static_cast<grants::Stage>(stage), grants::Lang::en)));
    stages_->setMinimumWidth(scaled(168));
    stages_->setMaxVisibleItems(stages_->count());
    header_->add_action(stages_);
    connect(stages_, &QComboBox::activated, this, [this](int chosen) {
        model_.edit([chosen](WindowState& state) {
            state.grantsStage.reset();
            if (chosen > 0)
                state.grantsStage = static_cast<grants::Stage>(chosen - 1);
        });
    });
}

void AllGrantsPage::show_file(const grants::GrantFile& file, const WindowState& state)
{
    const AllGrantsPresentation presentation =
        all_grants_presentation(file, state.today, {state.fiscalYear, state.grantsStage, state.search});
    facts_ = to_qt(presentation.facts);
    order_ = to_qt(presentation.order);
    show_facts();
    stages_->setCurrentIndex(state.grantsStage ? static_cast<int>(*state.grantsStage) + 1 : 0);
    stages_->setEnabled(presentation.emptiness != Emptiness::noGrants);
    if (presentation.emptiness == Emptiness::none)
        show_rows(presentation);
    else
        show_empty(presentation);
}

void AllGrantsPage::show_facts()
{
    const bool sorted = table_->view().horizontalHeader()->sortIndicatorSection() >= 0;
    const bool tells_order = !sorted && !order_.isEmpty();
    header_->set_facts({{tells_order ? facts_ + QStringLiteral(" · ") + order_ : facts_, Role::text2}});
}

void AllGrantsPage::show_rows(const AllGrantsPresentation& presentation)
{
    std::vector<desktop::TableRow> rows;
    for (const GrantRow& row : presentation.rows)
        rows.push_back(table_row(row));
    table_->view().set_rows(std::move(rows));
    table_->set_totals({total(presentation.count), {}, total(presentation.asked), total(presentation.awarded), {}, {}},
        to_qt(presentation.count + ", asked " + presentation.asked + ", awarded " + presentation.awarded));
    body_->setCurrentIndex(0);
}

void AllGrantsPage::show_empty(const AllGrantsPresentation& presentation)
{
    if (!empty_ || std::exchange(empty_words_, presentation.empty) != presentation.empty) {
        delete empty_;
        const bool searched = presentation.emptiness == Emptiness::noMatch;
        empty_words_ = presentation.empty;
        empty_ = new desktop::EmptyState(searched ? QStringLiteral("search-none") : QStringLiteral("all-grants"),
            to_qt(presentation.empty.heading), to_qt(presentation.empty.line), body_);
        if (searched)
            connect(
                empty_->add_button(QStringLiteral("Clear Search")), &QPushButton::clicked, this,
                [this] { model_.edit([](WindowState& state) { state.search.clear(); }); }, Qt::QueuedConnection);
        if (presentation.emptiness == Emptiness::noneInStage)
            connect(
                empty_->add_button(QStringLiteral("Show All Stages")), &QPushButton::clicked, this,
                [this] { model_.edit([](WindowState& state) { state.grantsStage.reset(); }); }, Qt::QueuedConnection);
        body_->addWidget(empty_);
    }
    body_->setCurrentWidget(empty_);
}

} // namespace quillfern::app
