#include "platform/versions_store.h"
#include "tests/faults/failing_calls.h"
#include "tests/faults/versions.h"
#include "tests/platform/scratch_folder.h"

#include <cstring>
#include <gtest/gtest.h>
#include <set>

/// Fails each call of a save in turn, once and from then on, and looks at what is left each time.
namespace quillfern::faults {
namespace {

using namespace platform;
using Lasting = FailingCalls::Lasting;

struct Disk {
    const char* name;
    bool keeper = false; ///< previous states are kept
    bool other_disk = false; ///< but not on the document's disk
    bool no_links = false;
    bool two_steps = false;
    bool renames_all_the_same = false;
};

constexpr PruningRule few{.recent = 3, .days = 0, .weeks = 0};

struct Fault {
    int call = 0;
    int error = EIO;
    Lasting lasting = Lasting::once;
};

/// One document, saved through failing calls again and again: state after state, never made anew.
class Sweep {
public:
    explicit Sweep(const Disk& disk) : disk_(disk)
    {
        std::filesystem::create_directories(scratch_ / "locks");
        const PackageContents first = version(number_);
        lock_.emplace(std::move(*DocumentLock::acquire_in(scratch_ / "locks", path_)));
        EXPECT_TRUE(save_package_as(path_, request(first, nullptr), Existing::refuse, Ownership::copy, *lock_).ok());
        reopen();
    }

    /// Empty when all is well. `reached` becomes false when the save ended before the failing call.
    std::string try_fault(const Fault& fault, bool& reached);
    std::string try_in_place(const Fault& fault, bool& reached);

private:
    SaveRequest request(const PackageContents& contents, DisplacedTrees* keeper) const
    {
        return {.layout = layout, .contents = contents, .today = "2026-03-07", .displaced = keeper};
    }

    std::string check_kept(const SaveOutcome* outcome) const;
    std::string recover(const PackageContents& contents, const std::vector<Blob>& dropped);
    std::string save_reopened();
    void reopen()
    {
        auto read = read_package_folder(path_, layout, &*lock_);
        ASSERT_TRUE(read.ok());
        read_ = std::move(*read);
    }

    Disk disk_;
    ScratchFolder scratch_;
    std::string path_ = scratch_ / "Pantry.quillfern";
    VersionsStore kept_{scratch_ / "kept", layout.mainFile};
    std::optional<DocumentLock> lock_;
    PackageRead read_;
    int number_ = 1;
};

std::string Sweep::try_fault(const Fault& fault, bool& reached)
{
    FailingCalls calls(fault.call, fault.error, fault.lasting);
    calls.no_links = disk_.no_links;
    calls.two_steps = disk_.two_steps;
    calls.renames_all_the_same = disk_.renames_all_the_same;
    if (disk_.other_disk)
        calls.other_disk = scratch_ / "kept";
    VersionsStore keeper(scratch_ / "kept", layout.mainFile, calls);
    std::vector<Blob> dropped;
    for (const auto& [name, blob] : read_.contents.attachments)
        dropped.push_back(blob);
    const PackageContents contents = version(number_ + 1, &read_.contents);
    const auto saved = save_package(*read_.place, request(contents, disk_.keeper ? &keeper : nullptr), *lock_, calls);
    if (disk_.keeper)
        keeper.prune(path_, {}, few);
    reached = calls.reached();

    const Verdict found = judge(path_, &*lock_);
    if (found.number == 0)
        return found.fault;
    if (const std::string wrong = check_kept(saved ? &*saved : nullptr); !wrong.empty())
        return wrong;
    if (saved && found.number != number_ + 1)
        return "it says that it has saved and has not";
    if (!saved && saved.error().problem != SaveProblem::notFlushed && found.number != number_)
        return "it says that nothing has changed, and something has";
    if (!saved && saved.error().problem != SaveProblem::notFlushed && fault.lasting == Lasting::once
        && debris(path_) > 0 && !disk_.renames_all_the_same)
        return "something was left behind";
    return recover(contents, dropped);
}

/// Every state in the store is whole, and the one before this save is there or beside the document.
std::string Sweep::check_kept(const SaveOutcome* outcome) const
{
    std::set<int> numbers;
    for (const Version& version : kept_.versions_of(path_)) {
        const Verdict kept = judge(version.path);
        if (kept.number == 0)
            return "a version in the store is not whole: " + kept.fault;
        numbers.insert(kept.number);
    }
    if (!disk_.keeper || !outcome)
        return "";
    if (outcome->displacedError == 0 && outcome->conflict.empty() && !numbers.contains(number_))
        return "the previous state is not in the store";
    if (outcome->displacedError != 0 && debris(path_) == 0)
        return "the previous state is neither in the store nor beside the document";
    return "";
}

/// The disk is well again: the same document is saved once more.
std::string Sweep::recover(const PackageContents& contents, const std::vector<Blob>& dropped)
{
    const auto saved = save_package(*read_.place, request(contents, disk_.keeper ? &kept_ : nullptr), *lock_);
    if (!saved && disk_.renames_all_the_same && saved.error().problem == SaveProblem::changedOnDisk)
        return save_reopened(); // Whether it was saved could not be known; the user is asked.
    if (!saved)
        return "the next save fails: " + std::string(std::strerror(saved.error().systemError)) + ' '
            + std::to_string(static_cast<int>(saved.error().problem));
    if (judge(path_, &*lock_).number != number_ + 1)
        return "the next save is not whole";
    kept_.prune(path_, {}, few);
    for (const Blob& blob : dropped)
        if (!blob.read())
            return "an attachment that an undo step may want is lost";
    for (const auto& [name, blob] : contents.attachments)
        if (!blob.read())
            return "an attachment of the document is lost";
    ++number_;
    reopen();
    clean_leftovers(*read_.place, layout, nullptr, *lock_);
    return debris(path_) > 0 ? "leftovers are not cleaned up" : "";
}

std::string Sweep::save_reopened()
{
    reopen();
    clean_leftovers(*read_.place, layout, nullptr, *lock_);
    const PackageContents contents = version(++number_, &read_.contents);
    return save_package(*read_.place, request(contents, nullptr), *lock_) ? "" : "the reopened document is not saved";
}

std::string Sweep::try_in_place(const Fault& fault, bool& reached)
{
    FailingCalls calls(fault.call, fault.error, fault.lasting);
    save_in_place(calls, path_, number_ + 1);
    reached = calls.reached();
    const Verdict found = judge(path_, &*lock_);
    return found.fault;
}

const Disk disks[] = {
    {.name = "usual"},
    {.name = "previous states are kept", .keeper = true},
    {.name = "previous states are kept on another disk", .keeper = true, .other_disk = true},
    {.name = "no hard links", .no_links = true},
    {.name = "no exchange of folders", .two_steps = true},
    {.name = "renames that fail have happened", .renames_all_the_same = true},
};

std::vector<Fault> kinds_of_fault(const Disk& disk)
{
    std::vector<Fault> kinds = {{.error = EIO}, {.error = EIO, .lasting = Lasting::fromThenOn}};
    if (std::string_view(disk.name) == "usual")
        for (const int error : {ENOSPC, EINTR, EACCES, ENOENT})
            kinds.push_back({.error = error});
    return kinds;
}

TEST(FaultSweep, No_failing_call_breaks_a_document)
{
    for (const Disk& disk : disks) {
        Sweep sweep(disk);
        int saves = 0;
        for (Fault fault : kinds_of_fault(disk)) {
            bool reached = true;
            for (fault.call = 0; reached; ++fault.call, ++saves) {
                const std::string wrong = sweep.try_fault(fault, reached);
                ASSERT_EQ(wrong, "") << disk.name << ", call " << fault.call << ": " << std::strerror(fault.error)
                                     << (fault.lasting == Lasting::once ? " once" : " from then on");
            }
        }
        std::printf("%s: %d saves\n", disk.name, saves);
    }
}

TEST(FaultSweep, A_saver_that_writes_in_place_is_found_out)
{
    bool found_out = false;
    for (Fault fault{.call = 0, .error = ENOSPC, .lasting = Lasting::fromThenOn}; fault.call < 20; ++fault.call) {
        Sweep sweep(disks[0]);
        bool reached = true;
        found_out = found_out || !sweep.try_in_place(fault, reached).empty();
    }
    EXPECT_TRUE(found_out);
}

} // namespace
} // namespace quillfern::faults
