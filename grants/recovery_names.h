#pragma once

namespace quillfern::grants::recovery {

inline constexpr const char* note_name = "note";
inline constexpr const char* lock_name = "lock";

} // namespace quillfern::grants::recovery
