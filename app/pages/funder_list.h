#pragma once

#include "app/pages/funders_presentation.h"

#include <QListView>

namespace quillfern::app {

class FunderListModel;

/// The funders by name, each with its kind and what it has awarded.
class FunderList : public QListView {
    Q_OBJECT
public:
    explicit FunderList(QWidget* parent = nullptr);

    void show_lines(const std::vector<FunderLine>& lines, const std::optional<Uuid>& chosen);

    const FunderLine& line(int row) const;

Q_SIGNALS:
    void funder_chosen(const quillfern::Uuid& funder);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    FunderListModel* model_;
    bool showing_ = false;
};

} // namespace quillfern::app
