#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillfern::app {

class OpenDocument;

/// What a strip over the page says about the document's file, and what the user can do about it there.
struct Notice {
    enum class Action { duplicate, tryLock, reload, keepBoth, saveAs, save, revert };

    struct Button {
        QString text;
        Action action;

        friend bool operator==(const Button&, const Button&) = default;
    };

    QString icon;
    QString text;
    std::vector<Button> buttons;

    friend bool operator==(const Notice&, const Notice&) = default;
};

/// The most urgent one; absent when all is well.
std::optional<Notice> notice_for(const OpenDocument& document);

} // namespace quillfern::app
