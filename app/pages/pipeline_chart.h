#pragma once

#include "app/pages/pipeline_presentation.h"

#include <QWidget>

#include <optional>

class QPainter;

namespace quillfern::app {

/// The stages of the pipeline as bars on one scale. A click chooses a stage, another one lets it go; with the keyboard,
/// the arrows choose and Escape lets go.
class PipelineChart : public QWidget {
    Q_OBJECT
public:
    explicit PipelineChart(QWidget* parent = nullptr);

    void show_bars(const std::vector<StageBar>& bars, std::optional<grants::Stage> chosen);

    QSize sizeHint() const override;

Q_SIGNALS:
    void stage_chosen(std::optional<grants::Stage> stage);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    int chosen_row() const; ///< -1: none
    int row_at(int y) const; ///< -1: none
    QRect row_rect(int row) const;
    void choose(int row);
    void set_hovered(int row);
    void paint_head(QPainter& painter) const;
    void paint_row(QPainter& painter, int row) const;

    std::vector<StageBar> bars_;
    std::optional<grants::Stage> chosen_;
    int hovered_ = -1;
};

} // namespace quillfern::app
