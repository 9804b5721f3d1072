#include "grants/recovery_store.h"
#include "tests/faults/failing_calls.h"
#include "tests/platform/scratch_folder.h"

#include <gmock/gmock.h>

#include <fcntl.h>

namespace quillfern::grants {
namespace {

namespace fs = std::filesystem;
using faults::FailingCalls;
using platform::Blob;
using platform::entries;
using platform::get;
using platform::put;
using platform::SystemCalls;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

OrgPackage package_named(const char* name)
{
    OrgPackage package;
    package.file.org.name = name;
    return package;
}

void attach(OrgPackage& package, const std::string& name, const Blob& blob)
{
    AttachmentBytes attachments = *package.attachments;
    attachments.insert_or_assign(name, blob);
    package.attachments = std::move(attachments);
}

/// Attachments and their bytes.
std::map<std::string, std::string> bytes_of(const OrgPackage& package)
{
    std::map<std::string, std::string> all;
    for (const auto& [name, blob] : *package.attachments) {
        const auto bytes = blob.read();
        all[name] = bytes ? **bytes : "(unreadable)";
    }
    return all;
}

class RecoveryStore : public testing::Test {
protected:
    /// A package with two attachments, opened.
    OpenedPackage opened_pantry()
    {
        put(path + "/Quillfern.json", R"({"formatVersion": 2, "org": {"name": "Pantry"}})");
        put(path + "/Attachments/a", "bytes of a");
        put(path + "/Attachments/b", "bytes of b");
        auto opened = read_package(path);
        EXPECT_TRUE(opened.ok());
        return *std::move(opened);
    }

    /// What the next start finds after a crash in this moment: whoever wrote the folder is no more.
    std::vector<FoundRecovery> crash()
    {
        slot = RecoverySlot(folder);
        return RecoverySlot::find(folder);
    }

    std::vector<std::string> snapshot_files() const
    {
        std::vector<std::string> names;
        for (const std::string& each : entries(folder))
            for (const std::string& name : entries(folder + '/' + each))
                names.push_back(name);
        return names;
    }

    platform::ScratchFolder scratch;
    std::string path = scratch / "Pantry.quillfern";
    std::string folder = scratch / "state/recovery";
    RecoverySlot slot{folder};
    RecoveryInfo untitled{"", "Pantry", "", {1000}};
    RecoveryInfo named{path, "Pantry", std::string(64, 'a'), {1000}};
};

TEST_F(RecoveryStore, A_new_document_comes_back_with_its_attachments)
{
    OrgPackage package = package_named("Untitled");
    attach(package, "memory \xFF%\n", Blob(std::string("in memory")));
    attach(package, "elsewhere", opened_pantry().package.attachments->at("a"));
    package.logo = Blob(std::string("logo"));
    ASSERT_TRUE(slot.write(package, untitled).ok());
    fs::remove_all(path);
    EXPECT_EQ(bytes_of(package).at("elsewhere"), "bytes of a") << "its file went, the snapshot has it";
    const auto expected = bytes_of(package);
    const GrantFile file = package.file;
    package = {};
    auto found = crash();
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].info, untitled);
    const auto recovered = found[0].slot.read(nullptr);
    ASSERT_TRUE(recovered.ok());
    EXPECT_THAT(recovered->notes, IsEmpty());
    EXPECT_EQ(recovered->package.file, file);
    EXPECT_EQ(bytes_of(recovered->package), expected);
    EXPECT_EQ(**recovered->package.logo->read(), "logo");
}

TEST_F(RecoveryStore, A_named_document_comes_back_whatever_became_of_its_package)
{
    class NoLinks : public SystemCalls {
        int link_at(int, const char*, int, const char*) override { return errno = EXDEV, -1; }
    } other_disk;
    for (const bool same_disk : {true, false}) {
        SCOPED_TRACE(same_disk);
        if (!same_disk)
            slot = RecoverySlot(folder, other_disk);
        const OpenedPackage opened = opened_pantry();
        OrgPackage package = opened.package;
        package.file.org.name = "Edited";
        attach(package, "new", Blob(std::string("new")));
        ASSERT_TRUE(slot.write(package, named).ok());
        auto found = crash();
        ASSERT_THAT(found, SizeIs(1));
        EXPECT_EQ(found[0].info.path, path);
        const auto with_package = found[0].slot.read(&opened.package);
        ASSERT_TRUE(with_package.ok());
        EXPECT_EQ(with_package->package.file, package.file);
        EXPECT_EQ(with_package->package.attachments->at("a"), opened.package.attachments->at("a")) << "the same file";
        EXPECT_EQ(bytes_of(with_package->package), bytes_of(package));

        fs::rename(path, scratch / "moved");
        const auto alone = found[0].slot.read(nullptr);
        ASSERT_TRUE(alone.ok());
        EXPECT_THAT(*alone->package.attachments, SizeIs(same_disk ? 3 : 1));
        EXPECT_THAT(alone->notes, SizeIs(same_disk ? 0 : 2)) << "the user is told what is missing";
        fs::remove_all(scratch / "moved");
        found[0].slot.discard();
    }
}

TEST_F(RecoveryStore, Writes_only_what_is_new)
{
    OrgPackage package = package_named("First");
    attach(package, "one", Blob(std::string("one")));
    ASSERT_TRUE(slot.write(package, untitled).ok());
    EXPECT_THAT(snapshot_files(), ElementsAre("blob-2", "lock", "note", "records-1"));
    const std::string note = folder + '/' + entries(folder).front() + "/note";
    const auto written = fs::last_write_time(note);
    RecoveryInfo later = untitled;
    later.savedAt = {2000};
    ASSERT_TRUE(slot.write(package, later).ok());
    EXPECT_EQ(fs::last_write_time(note), written) << "an equal value is not written again";

    ASSERT_TRUE(slot.write(package, named).ok());
    EXPECT_THAT(get(note), testing::HasSubstr("path " + path)) << "but where it lives now is";
    package.file.org.name = "Second";
    attach(package, "two", Blob(std::string("two")));
    ASSERT_TRUE(slot.write(package, named).ok());
    EXPECT_THAT(snapshot_files(), ElementsAre("blob-2", "blob-4", "lock", "note", "records-3"));
    slot.discard();
    EXPECT_THAT(entries(folder), IsEmpty());
}

TEST_F(RecoveryStore, A_second_crash_loses_nothing_of_the_first)
{
    OrgPackage package = package_named("First");
    attach(package, "one", Blob(std::string("one")));
    ASSERT_TRUE(slot.write(package, untitled).ok());
    for (const char* name : {"Second", "Third"}) {
        package = {};
        auto found = crash();
        ASSERT_THAT(found, SizeIs(1));
        EXPECT_THAT(RecoverySlot::find(folder), IsEmpty()) << "held by who found it";
        auto recovered = found[0].slot.read(nullptr);
        ASSERT_TRUE(recovered.ok());
        slot = std::move(found[0].slot);
        package = recovered->package;
        package.file.org.name = name;
        ASSERT_TRUE(slot.write(package, untitled).ok());
        EXPECT_THAT(snapshot_files(), SizeIs(4)) << "old records do not pile up";
    }
    EXPECT_EQ(bytes_of(package).at("one"), "one");
    slot.discard();
    EXPECT_EQ(bytes_of(package).at("one"), "one") << "an undo step may read it as long as it likes";
    EXPECT_THAT(RecoverySlot::find(folder), IsEmpty());
    package = {};
    EXPECT_THAT(entries(folder), IsEmpty());
}

TEST_F(RecoveryStore, Leaves_alone_what_it_does_not_understand_and_clears_away_what_is_dead)
{
    put(folder + "/broken/lock", "");
    put(folder + "/broken/note", "quillfern-recovery 2\nof a newer version\n");
    put(folder + "/others/lock", "");
    put(folder + "/others/holiday.jpg", "someone's");
    put(folder + "/torn/lock", "");
    put(folder + "/torn/note", "quillfern-recovery 1\nrecords records-1\nsaved 2026-03-07T14:03:22.125Z\n");
    put(folder + "/dead/lock", "");
    put(folder + "/dead/records-1", "half");
    put(folder + "/dead/.~note-0f3a99c1~", "half");
    fs::create_directories(folder + "/empty");
    EXPECT_THAT(RecoverySlot::find(folder), IsEmpty());
    EXPECT_THAT(entries(folder), ElementsAre("broken", "others", "torn"));

    ASSERT_TRUE(slot.write(package_named("Alive"), untitled).ok());
    EXPECT_THAT(RecoverySlot::find(folder), IsEmpty()) << "its program lives";
    auto found = crash();
    ASSERT_THAT(found, SizeIs(1));
    const std::vector<std::string> before = snapshot_files();
    for (const std::string& name : entries(folder))
        if (fs::exists(folder + '/' + name + "/records-1"))
            put(folder + '/' + name + "/records-1", "{ torn");
    EXPECT_FALSE(found[0].slot.read(nullptr).ok());
    found.clear();
    EXPECT_EQ(snapshot_files(), before);
}

TEST_F(RecoveryStore, Finding_leftovers_never_takes_a_folder_that_is_just_being_made)
{
    /// Looks for leftovers just before each call of the one who makes a folder.
    class Interrupted : public SystemCalls {
    public:
        Interrupted(std::string folder, int call) : folder_(std::move(folder)), call_(call) { }
        int open_at(int at, const char* name, int flags, mode_t mode) override
        {
            return look(), SystemCalls::open_at(at, name, flags, mode);
        }
        int lock(int file) override { return look(), SystemCalls::lock(file); }
        int status(int file, struct stat& status) override { return look(), SystemCalls::status(file, status); }
        bool reached() const { return count_ > call_; }

    private:
        void look()
        {
            if (count_++ == call_) {
                EXPECT_THAT(RecoverySlot::find(folder_), IsEmpty());
            }
        }
        std::string folder_;
        int call_;
        int count_ = 0;
    };
    bool reached = true;
    for (int call = 0; reached; ++call) {
        SCOPED_TRACE(call);
        Interrupted calls(folder, call);
        RecoverySlot making(folder, calls);
        ASSERT_TRUE(making.write(package_named("Alive"), untitled).ok());
        reached = calls.reached();
        EXPECT_THAT(RecoverySlot::find(folder), IsEmpty());
        making = RecoverySlot(folder);
        auto found = RecoverySlot::find(folder);
        ASSERT_THAT(found, SizeIs(1));
        found[0].slot.discard();
    }
}

TEST_F(RecoveryStore, After_a_failing_call_the_previous_or_the_next_snapshot_is_there)
{
    const struct {
        int error;
        FailingCalls::Lasting lasting = FailingCalls::Lasting::once;
        bool renames_all_the_same = false;
    } faults[] = {{EIO}, {EINTR}, {ENOSPC, FailingCalls::Lasting::fromThenOn}, {EIO, {}, true}};
    const OpenedPackage opened = opened_pantry();
    OrgPackage first = opened.package;
    first.file.org.name = "First";
    attach(first, "one", Blob(std::string("one")));
    OrgPackage second = first;
    second.file.org.name = "Second";
    attach(second, "two", Blob(std::string("two")));
    for (const auto& fault : faults) {
        bool reached = true;
        for (int call = 0; reached; ++call) {
            SCOPED_TRACE(call);
            ASSERT_TRUE(slot.write(first, named).ok());
            slot = RecoverySlot(folder); // the program ends; the next one's calls fail
            FailingCalls calls(call, fault.error, fault.lasting);
            calls.renames_all_the_same = fault.renames_all_the_same;
            bool written = false;
            if (auto found = RecoverySlot::find(folder, calls); !found.empty() && found[0].slot.read(&opened.package))
                for (int attempt = 0; attempt < 2; ++attempt)
                    written = found[0].slot.write(second, named).ok();
            reached = calls.reached();

            auto left = RecoverySlot::find(folder);
            ASSERT_THAT(left, SizeIs(1));
            const auto kept = left[0].slot.read(&opened.package);
            ASSERT_TRUE(kept.ok());
            const bool is_second = kept->package.file == second.file;
            EXPECT_TRUE(is_second || (!written && kept->package.file == first.file));
            EXPECT_EQ(bytes_of(kept->package), bytes_of(is_second ? second : first));
            left[0].slot.discard();
        }
    }
}

TEST_F(RecoveryStore, A_full_disk_keeps_the_previous_snapshot_and_fills_no_further)
{
    class FullDisk : public SystemCalls {
    public:
        explicit FullDisk(std::size_t room) : room_(room) { }
        ssize_t write(int file, const void* bytes, std::size_t count) override
        {
            if (room_ == 0)
                return errno = ENOSPC, -1;
            const ssize_t written = SystemCalls::write(file, bytes, std::min(count, room_));
            room_ -= static_cast<std::size_t>(std::max<ssize_t>(written, 0));
            return written;
        }

    private:
        std::size_t room_;
    };
    OrgPackage package = package_named("First");
    ASSERT_TRUE(slot.write(package, untitled).ok());
    bool fits = false;
    for (std::size_t room = 0; !fits; room += 50) {
        slot = RecoverySlot(folder);
        FullDisk disk(room);
        auto found = RecoverySlot::find(folder, disk);
        ASSERT_THAT(found, SizeIs(1));
        ASSERT_TRUE(found[0].slot.read(nullptr).ok());
        package.file.org.name = "Second";
        attach(package, "two", Blob(std::string(100, '2')));
        const auto written = found[0].slot.write(package, untitled);
        fits = written.ok();
        EXPECT_TRUE(fits || written.error() == ENOSPC);
        EXPECT_THAT(snapshot_files(), SizeIs(fits ? 4 : 3)) << "nothing of the failed attempt stays";
    }
    EXPECT_EQ(crash()[0].slot.read(nullptr)->package.file.org.name, "Second");
}

} // namespace
} // namespace quillfern::grants
