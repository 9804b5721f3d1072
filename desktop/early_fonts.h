#pragma once

#include <thread>

namespace quillfern::desktop {

/// Starts reading the desktop's list of fonts on another core.
///
/// The toolkit does so at the first text of the program, and nothing else at the start takes as long; begun before the
/// application object is made, it is done by the time the first text is laid out. Where the font library is not the
/// one expected, nothing happens and the toolkit reads the list itself as always.
std::jthread read_fonts_early();

} // namespace quillfern::desktop
