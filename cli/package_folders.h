#pragma once

#include <filesystem>
#include <string>

/// Which folders are documents, by the files in them.
namespace quillfern::cli {

bool holds_organization(const std::filesystem::path& folder);
bool holds_board(const std::filesystem::path& folder);

/// Whether a file of this path is, or would be, a part of a document: in a package or its folder of attachments.
bool is_inside_document(const std::string& path);

} // namespace quillfern::cli
