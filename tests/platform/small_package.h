#pragma once

#include "platform/directory_save.h"
#include "platform/package_reader.h"
#include "tests/platform/scratch_folder.h"

namespace quillfern::platform {

inline const PackageLayout small_layout{
    .mainFile = "Main.json", .attachmentsFolder = "Attachments", .logoFile = "Logo.png", .mainFileLimit = 1000};

/// Main file "one", attachments "a" and "b", a logo.
inline std::string make_small_package(const ScratchFolder& scratch)
{
    const std::string path = scratch / "Pantry.quillfern";
    put(path + "/Main.json", "one");
    put(path + "/Attachments/a", "bytes of a");
    put(path + "/Attachments/b", "bytes of b");
    put(path + "/Logo.png", "logo");
    return path;
}

inline PackageRead opened(const std::string& path, SystemCalls& calls = system_calls())
{
    auto read = read_package_folder(path, small_layout, nullptr, calls);
    if (!read)
        throw std::runtime_error("cannot read " + path);
    return std::move(*read);
}

inline DocumentLock locked(const ScratchFolder& scratch, const std::string& path)
{
    std::filesystem::create_directories(scratch / "locks");
    auto lock = DocumentLock::acquire_in(scratch / "locks", path);
    if (!lock)
        throw std::runtime_error("cannot lock " + path);
    return std::move(*lock);
}

inline SaveRequest request(const PackageContents& contents, DisplacedTrees* displaced = nullptr)
{
    return {.layout = small_layout, .contents = contents, .today = "2026-03-07", .displaced = displaced};
}

} // namespace quillfern::platform
