#pragma once

namespace quillfern::app {

/// The parts of one grant's detail, in order.
enum class GrantTab { overview, dates, reports, payments, files };

} // namespace quillfern::app
