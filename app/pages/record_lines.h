#pragma once

#include "app/pages/funders_presentation.h"

#include <QWidget>

namespace quillfern::app {

/// The lines of a record: what each is at the left, its text at the right. Texts can be selected; addresses open in the
/// mail program or the browser.
class RecordLines : public QWidget {
    Q_OBJECT
public:
    explicit RecordLines(const std::vector<RecordLine>& lines, QWidget* parent = nullptr);
};

} // namespace quillfern::app
