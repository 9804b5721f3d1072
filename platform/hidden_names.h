#pragma once

#include <string>
#include <string_view>

/// The names of the hidden entries that a save makes beside a document. They begin with ".~" and end with "~", so that
/// desktops hide them and synchronising programs leave them alone.
namespace quillfern::platform {

/// ".~NAME-<8 hex>~": a tree being built, or one that a save has displaced.
std::string fresh_sibling_name(std::string_view document);
bool is_sibling_of(std::string_view entry, std::string_view document);

/// The main file in a tree that is being built: a tree with a main file of its real name is complete.
inline constexpr char unfinished_main_file[] = ".~main~";

/// ".~NAME.bak~": the document itself, while a save that cannot exchange two folders in one step is replacing it.
std::string backup_name(std::string_view document);

inline constexpr std::size_t longest_file_name = 255; ///< bytes, on the file systems that people use

/// A name of at most so many bytes: of a longer one the beginning, cut between characters, with a hash that tells it
/// from others that begin so.
std::string shortened(std::string_view name, std::size_t longest);

/// A path's folder ("." when it has none) and last name; closing slashes do not count.
struct SplitPath {
    std::string folder;
    std::string name;
};
SplitPath split_path(std::string_view path);

std::string join_path(std::string_view folder, std::string_view name);

/// A name that a single file can have: not empty, ".", "..", and without a slash or NUL.
bool is_file_name(std::string_view name);

} // namespace quillfern::platform
