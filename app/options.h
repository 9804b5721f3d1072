#pragma once

#include "app/day_watch.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace quillfern::app {

/// What the program is started with.
struct Options {
    QStringList files;
    bool sample = false;
    QString scheme; ///< "light", "dark" or empty for the desktop's
    std::optional<grants::Day> today; ///< instead of the calendar's date
    bool exit_after_paint = false; ///< for measuring the start
    bool shareable = false; ///< a program that runs already, with other options, could do the same
    std::string text; ///< to print instead of opening a window; empty: none
    int exit_status = 0;

    DayWatch::Clock clock() const;
};

/// Before the toolkit has taken its own options out of the arguments, they cannot be told from mistakes.
enum class Strictness { lenient, strict };

Options read_options(const QStringList& arguments, Strictness strictness);

QStringList arguments_of(int count, char** values);

} // namespace quillfern::app
