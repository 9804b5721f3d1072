#include "app/pages/stage_chip.h"

#include "desktop/qt_text.h"
#include "grants/labels.h"

namespace quillfern::app {

desktop::Chip stage_chip(grants::Stage stage)
{
    using desktop::ChipTone;
    using grants::Stage;
    const QString text = desktop::to_qt(label(stage, grants::Lang::en));
    switch (stage) {
    case Stage::awarded:
        return {text, ChipTone::done, QStringLiteral("check")};
    case Stage::declined:
        return {text, ChipTone::plain, QStringLiteral("close")};
    case Stage::withdrawn:
        return {text, ChipTone::outline, QStringLiteral("withdrawn")};
    default:
        return {text, ChipTone::plain, {}, static_cast<int>(stage) + 1};
    }
}

} // namespace quillfern::app
