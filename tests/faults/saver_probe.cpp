#include "platform/versions_store.h"
#include "tests/faults/versions.h"

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <unistd.h>

/// A small program that saves and reads numbered states of one document, to be killed, starved and traced.
///
///     saver_probe make  PATH NUMBER
///     saver_probe save  PATH NUMBER [WAY [STORE]]     saves over state NUMBER - 1, or over NUMBER itself; previous
///                                             states go to the folder STORE
///     saver_probe loop  PATH NUMBER [WAY]     saves NUMBER, NUMBER + 1, ... without end
///     saver_probe check PATH                  prints the state's number
///     saver_probe watch PATH SECONDS          reads again and again
///
/// WAY is `sound`; `two-steps`, as on a disk that cannot exchange folders; or one of the sabotaged ones: `in-place`,
/// `no-parent-flush`, `no-file-flush`.
/// Exit status: 0 done, 1 refused, 2 a wrong command line, 3 the document is not whole.
namespace quillfern::faults {
namespace {

using namespace platform;

class Way : public SystemCalls {
public:
    explicit Way(std::string name) : name_(std::move(name)) { }

    bool in_place() const { return name_ == "in-place"; }

    int rename_at(int from_folder, const char* from, int to_folder, const char* to, unsigned flags) override
    {
        if (name_ == "two-steps" && flags != 0)
            return errno = EINVAL, -1;
        return SystemCalls::rename_at(from_folder, from, to_folder, to, flags);
    }

    int sync(int file) override
    {
        struct stat kind = {};
        fstat(file, &kind);
        if (name_ == "no-file-flush" && S_ISREG(kind.st_mode))
            return 0;
        if (name_ == "no-parent-flush" && S_ISDIR(kind.st_mode) && faccessat(file, "Pantry.quillfern", F_OK, 0) == 0)
            return 0;
        return SystemCalls::sync(file);
    }

private:
    std::string name_;
};

int say(const char* what, int status)
{
    std::puts(what);
    std::fflush(stdout);
    return status;
}

/// One open document.
struct Session {
    PackageRead read;
    DocumentLock lock;
};

Result<Session, int> open_session(const std::string& path)
{
    auto lock = DocumentLock::acquire(path);
    if (!lock)
        return fail(say("locked", 1));
    auto read = read_package_folder(path, layout, &*lock);
    if (!read)
        return fail(say("cannot be opened", 3));
    const Verdict verdict = judge(*read);
    if (verdict.number == 0)
        return fail(say(verdict.fault.c_str(), 3));
    clean_leftovers(*read->place, layout, nullptr, *lock);
    return Session{std::move(*read), std::move(*lock)};
}

int save(Session& session, Way& way, int number, DisplacedTrees* store = nullptr)
{
    if (way.in_place())
        return save_in_place(way, session.read.place->tree->path(), number) ? 0 : say("cannot write", 1);
    const PackageContents contents = version(number, &session.read.contents);
    const auto saved = save_package(*session.read.place,
        {.layout = layout, .contents = contents, .today = "2026-03-07", .displaced = store}, session.lock, way);
    if (saved && saved->displacedError != 0)
        say("PREVIOUS STATE BESIDE", 0);
    if (!saved)
        return say(strerror(saved.error().systemError), 1);
    session.read.contents = contents;
    return 0;
}

int save_once(const std::string& path, int number, Way& way, const std::string& folder)
{
    auto session = open_session(path);
    if (!session)
        return session.error();
    say("OPENED", 0); // The harness counts system calls from here.
    VersionsStore store(folder, layout.mainFile);
    const int status = save(*session, way, number, folder.empty() ? nullptr : &store);
    return status == 0 ? say("SAVED", 0) : status;
}

int save_without_end(const std::string& path, int number, Way& way)
{
    auto session = open_session(path);
    if (!session)
        return session.error();
    say("OPENED", 0);
    while (save(*session, way, number) == 0)
        ++number;
    return 1;
}

int make(const std::string& path, int number)
{
    const auto lock = DocumentLock::acquire(path);
    const PackageContents contents = version(number);
    if (!lock)
        return say("locked", 1);
    const auto made = save_package_as(path, {.layout = layout, .contents = contents, .today = "2026-03-07"},
        Existing::refuse, Ownership::copy, *lock);
    return made ? 0 : say("cannot be made", 1);
}

int check(const std::string& path)
{
    const Verdict verdict = judge(path);
    return verdict.number ? say(std::to_string(verdict.number).c_str(), 0) : say(verdict.fault.c_str(), 3);
}

/// A state that is replaced while its files are being read is no fault; one that stands there and is not whole is.
bool still_stands(const std::string& path, const PackageRead& read)
{
    const auto again = read_package_folder(path, layout);
    return again && again->contents.mainText == read.contents.mainText;
}

int watch(const std::string& path, int seconds)
{
    const time_t end = time(nullptr) + seconds;
    std::map<int, int> seen;
    while (time(nullptr) < end) {
        const auto read = read_package_folder(path, layout);
        if (!read)
            return say("cannot be opened", 3);
        const Verdict verdict = judge(*read);
        if (verdict.number == 0 && still_stands(path, *read))
            return say(verdict.fault.c_str(), 3);
        ++seen[verdict.number];
    }
    std::printf("%zu states\n", seen.size());
    return 0;
}

int run(int count, char** arguments)
{
    if (count < 3)
        return 2;
    const std::string verb = arguments[1];
    const std::string path = arguments[2];
    const int number = count > 3 ? std::atoi(arguments[3]) : 0;
    Way way(count > 4 ? arguments[4] : "sound");
    if (verb == "make")
        return make(path, number);
    if (verb == "save")
        return save_once(path, number, way, count > 5 ? arguments[5] : "");
    if (verb == "loop")
        return save_without_end(path, number, way);
    if (verb == "check")
        return check(path);
    return verb == "watch" ? watch(path, number) : 2;
}

} // namespace
} // namespace quillfern::faults

int main(int count, char** arguments)
{
    return quillfern::faults::run(count, arguments);
}
