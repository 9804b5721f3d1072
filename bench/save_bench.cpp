#include "bench/made_file.h"
#include "bench/paired.h"
#include "grants/grant_file_json.h"
#include "grants/org_package.h"
#include "platform/clock.h"
#include "platform/versions_store.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

/// Saving a document with a gigabyte of unchanged attachments, again and again with one grant edited in between,
/// against writing and flushing the same JSON alone. The previous states go to a versions store, as the program has it.
/// Files are made under the present folder, so that the disk is measured and not memory; they need 2 GB.
namespace quillfern::bench {
namespace {

namespace fs = std::filesystem;
using grants::OrgPackage;

constexpr std::size_t attachment_count = 10;
constexpr std::size_t attachment_bytes = 100'000'000;

/// A folder that goes with the object.
struct ScratchFolder {
    fs::path path = fs::current_path() / ("save_bench-" + std::to_string(getpid()));

    ScratchFolder() { fs::create_directory(path); }
    ~ScratchFolder() { fs::remove_all(path); }
};

void expect(bool fine, const char* what)
{
    if (fine)
        return;
    std::fprintf(stderr, "save_bench: %s failed\n", what);
    std::exit(1);
}

void write_and_flush(const fs::path& path, const std::string& text)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    expect(file >= 0, "opening the peer's file");
    for (std::size_t at = 0; at < text.size();) {
        const ssize_t written = write(file, text.data() + at, text.size() - at);
        expect(written > 0, "writing the peer's file");
        at += static_cast<std::size_t>(written);
    }
    expect(fsync(file) == 0, "flushing the peer's file");
    close(file);
}

void make_package(const fs::path& path, const grants::GrantFile& file)
{
    fs::create_directories(path / "Attachments");
    std::ofstream(path / "Quillfern.json") << grants::write_grant_file(file);
    const std::string bytes(attachment_bytes, 'x');
    for (std::size_t i = 0; i < attachment_count; ++i)
        std::ofstream(path / "Attachments" / (std::to_string(i) + ".pdf")) << bytes;
    sync();
}

OrgPackage edited(OrgPackage package)
{
    Shared<grants::Grant>& grant = package.file.grants.front();
    grant = grant.with([](grants::Grant& changed) { changed.title += '.'; });
    return package;
}

void save(benchmark::State& state)
{
    const ScratchFolder scratch;
    const fs::path path = scratch.path / "Pantry.quillfern";
    make_package(path, made_file(static_cast<std::size_t>(state.range(0))));
    const auto lock = platform::DocumentLock::acquire(path);
    expect(lock.ok(), "locking the document");
    auto opened = grants::read_package(path, &*lock);
    expect(opened.ok(), "opening the document");
    const std::string json = grants::write_grant_file(opened->package.file);
    platform::VersionsStore versions(scratch.path / "versions", "Quillfern.json");
    run_paired(
        state,
        [&] {
            opened->package = edited(opened->package);
            expect(grants::write_package(opened->package, *opened->place, *lock, &versions).ok(), "saving");
        },
        [&] { write_and_flush(scratch.path / "peer.json", json); }, [&] { versions.prune(path, platform::now()); });
}

BENCHMARK(save)->Arg(200)->Arg(2000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillfern::bench

BENCHMARK_MAIN();
