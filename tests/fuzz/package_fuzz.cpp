#include "grants/org_package.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>

using namespace quillfern;
namespace fs = std::filesystem;

namespace {

/// Takes the input apart: bytes that choose, and texts of a chosen length.
struct Script {
    std::string_view rest;

    std::uint8_t byte()
    {
        if (rest.empty())
            return 0;
        const auto first = static_cast<std::uint8_t>(rest.front());
        rest.remove_prefix(1);
        return first;
    }

    std::string text(std::size_t length)
    {
        std::string taken(rest.substr(0, length));
        rest.remove_prefix(taken.size());
        return taken;
    }
};

/// A folder in memory where there is one, so that a hundred thousand trees cost no disk.
const fs::path& scratch()
{
    static const fs::path path = [] {
        const fs::path base = fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path().string();
        const fs::path made = base / ("quillfern-fuzz-" + std::to_string(getpid()));
        fs::create_directories(made);
        std::atexit([] { fs::remove_all(scratch()); });
        return made;
    }();
    return path;
}

constexpr std::string_view names[] = {"Quillfern.json", "Logo.png", "Attachments", "Attachments/a.pdf",
    "Attachments/.hidden", "Attachments/b", "Attachments/folder/c", "unknown", ".~Pantry.quillfern-0123abcd~"};

void add_entry(const fs::path& package, Script& script)
{
    const fs::path path = package / names[script.byte() % std::size(names)];
    std::error_code ignored;
    fs::create_directories(path.parent_path(), ignored);
    fs::remove(path, ignored); // writing into a FIFO or a link of before would not make a file here
    switch (script.byte() % 8) {
    case 0:
        fs::create_directory(path, ignored);
        return;
    case 1:
        fs::create_symlink(package / "Quillfern.json", path, ignored);
        return;
    case 2:
        mkfifo(path.c_str(), 0600);
        return;
    case 3:
        fs::create_symlink("/nowhere", path, ignored);
        return;
    default:
        std::ofstream(path) << script.text(script.byte());
    }
}

/// Every entry below the folder with what it is and, for a regular file, what it holds.
std::map<std::string, std::string> tree(const fs::path& folder)
{
    std::map<std::string, std::string> entries;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        std::string& content = entries[entry.path()];
        content = std::to_string(static_cast<int>(entry.symlink_status().type()));
        if (!entry.is_symlink() && entry.is_regular_file())
            content += std::string(std::istreambuf_iterator<char>(std::ifstream(entry.path()).rdbuf()), {});
    }
    return entries;
}

void expect(bool fine)
{
    if (!fine)
        std::abort();
}

} // namespace

/// Whatever stands in a folder, opening it ends, changes nothing on the disk and follows no link; what opens can be
/// saved, and then opens again as it was saved.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fs::path package = scratch() / "Pantry.quillfern";
    fs::create_directory(package);
    Script script{{reinterpret_cast<const char*>(data), size}};
    for (int entries = script.byte() % 8; entries > 0; --entries)
        add_entry(package, script);
    if (!fs::exists(fs::symlink_status(package / "Quillfern.json")))
        std::ofstream(package / "Quillfern.json") << script.rest;

    const auto before = tree(scratch());
    const auto opened = grants::read_package(package);
    expect(tree(scratch()) == before);
    if (opened) {
        for (const auto& [name, blob] : *opened->package.attachments)
            expect(blob.read().ok());
        const auto lock = platform::DocumentLock::acquire_in(scratch(), package);
        expect(lock.ok());
        expect(grants::write_package(opened->package, *opened->place, *lock).ok());
        const auto again = grants::read_package(package, &*lock);
        expect(again.ok() && again->package.file.grants == opened->package.file.grants
            && again->package.attachments->size() == opened->package.attachments->size());
    }
    fs::remove_all(scratch());
    fs::create_directory(scratch());
    return 0;
}
