#include "platform/tree_builder.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"

#include <fcntl.h>
#include <future>

namespace quillfern::platform {
namespace {

class TreeBuilder {
public:
    TreeBuilder(SystemCalls& calls, const TargetFolder& sibling, const BuildPlan& plan)
        : calls_(calls), sibling_(sibling), plan_(plan)
    {
    }

    Result<BuiltTree, SaveError> build();

private:
    using Written = Result<Done, SaveError>;

    Written write_attachments();
    Written write_attachment(const std::string& name, const Blob& blob);
    Written carry_over_arrived();
    Written write_logo();
    Written begin_main_file();
    Written write_read_me();
    Written finish_main_file();
    Written flush_attachments();
    Written finish_reading_back();
    Written finish_folder();

    Result<FileStamp, SaveError> write_blob(const TargetFolder& target, const std::string& name, const Blob& blob);
    Result<FileStamp, SaveError> take_file(const TargetFolder& target, const std::string& name, const StoredFile& file);
    Result<FileStamp, SaveError> clone_or_copy(
        const TargetFolder& target, const std::string& name, int from, const FileStamp& stamp);
    bool makes_clones(const TargetFolder& target);
    Result<FileStamp, SaveError> take_own(const TargetFolder& target, const std::string& name, int folder,
        const std::string& own_name, const FileStamp& stamp);
    Descriptor present_file(const std::string& name);

    SystemCalls& calls_;
    const TargetFolder& sibling_;
    const BuildPlan& plan_;
    Descriptor attachments_folder_;
    TargetFolder attachments_;
    enum class Clones { unknown, made, refused } clones_ = Clones::unknown;
    BuiltTree built_;
    // Last: a failing build waits for them.
    std::future<Result<FileStamp, SaveError>> main_file_;
    std::future<bool> reads_back_;
};

Result<BuiltTree, SaveError> TreeBuilder::build()
{
    using Step = Written (TreeBuilder::*)();
    for (const Step step : {&TreeBuilder::begin_main_file, &TreeBuilder::write_attachments, &TreeBuilder::write_logo,
             &TreeBuilder::write_read_me, &TreeBuilder::finish_main_file, &TreeBuilder::flush_attachments,
             &TreeBuilder::finish_reading_back, &TreeBuilder::finish_folder})
        if (const Written written = (this->*step)(); !written)
            return fail(written.error());
    return std::move(built_);
}

TreeBuilder::Written TreeBuilder::write_attachments()
{
    const std::string& name = plan_.layout.attachmentsFolder;
    if (name.empty())
        return Done{};
    attachments_.path = join_path(sibling_.path, name);
    if (calls_.make_folder_at(sibling_.folder, name.c_str(), 0777) != 0)
        return fail(save_error(SaveStep::build, attachments_.path, errno));
    attachments_folder_ = open_folder_at(calls_, sibling_.folder, name);
    if (!attachments_folder_)
        return fail(save_error(SaveStep::build, attachments_.path, errno));
    attachments_.folder = attachments_folder_.get();
    for (const auto& [file_name, blob] : plan_.contents.attachments)
        if (const Written written = write_attachment(file_name, blob); !written)
            return written;
    if (const Written carried = carry_over_arrived(); !carried)
        return carried;
    if (plan_.present && plan_.present->attachments)
        copy_attributes(calls_, plan_.present->attachments.get(), attachments_.folder);
    built_.fingerprint.listing.hasAttachmentsFolder = true;
    return Done{};
}

TreeBuilder::Written TreeBuilder::write_attachment(const std::string& name, const Blob& blob)
{
    auto stamp = write_blob(attachments_, name, blob);
    if (!stamp)
        return fail(stamp.error());
    built_.fingerprint.listing.attachments.emplace(name, *stamp);
    return Done{};
}

TreeBuilder::Written TreeBuilder::carry_over_arrived()
{
    for (const auto& [name, stamp] : plan_.arrived)
        if (const auto taken = take_own(attachments_, name, plan_.present->attachments.get(), name, stamp); !taken)
            return fail(taken.error());
    return Done{};
}

TreeBuilder::Written TreeBuilder::write_logo()
{
    if (!plan_.contents.logo || plan_.layout.logoFile.empty())
        return Done{};
    const auto stamp = write_blob(sibling_, plan_.layout.logoFile, *plan_.contents.logo);
    if (!stamp)
        return fail(stamp.error());
    built_.fingerprint.listing.logo = *stamp;
    return Done{};
}

/// The text is written and flushed while the attachments are linked and the text is read back and hashed: the one waits
/// for the disk, the other for the processor. Writing begins first, as it takes longest.
TreeBuilder::Written TreeBuilder::begin_main_file()
{
    main_file_ = std::async(std::launch::async, [this] {
        return write_new_file(
            calls_, sibling_, unfinished_main_file, plan_.contents.mainText, present_file(plan_.layout.mainFile).get());
    });
    if (plan_.readsBack)
        reads_back_ = std::async(std::launch::async, plan_.readsBack);
    return Done{};
}

TreeBuilder::Written TreeBuilder::write_read_me()
{
    const std::string& name = plan_.layout.readMeFile;
    if (name.empty())
        return Done{};
    const auto stamp = write_new_file(calls_, sibling_, name, plan_.contents.readMe, present_file(name).get());
    if (!stamp)
        return fail(stamp.error());
    return Done{};
}

TreeBuilder::Written TreeBuilder::finish_main_file()
{
    built_.fingerprint.mainHash = sha256(plan_.contents.mainText);
    const auto stamp = main_file_.get();
    if (!stamp)
        return fail(stamp.error());
    const char* name = plan_.layout.mainFile.c_str();
    if (calls_.rename_at(sibling_.folder, unfinished_main_file, sibling_.folder, name, 0) != 0)
        return fail(save_error(SaveStep::build, join_path(sibling_.path, name), errno));
    built_.fingerprint.listing.mainFile = *stamp;
    return Done{};
}

/// After the text and not beside it: a journal is flushed as a whole, and two flushes at once wait for each other.
TreeBuilder::Written TreeBuilder::flush_attachments()
{
    return attachments_folder_ ? flush(calls_, attachments_.folder, attachments_.path) : Written(Done{});
}

TreeBuilder::Written TreeBuilder::finish_reading_back()
{
    if (reads_back_.valid() && !reads_back_.get())
        return fail(SaveError{SaveProblem::badContents, SaveStep::check, sibling_.path, 0});
    return Done{};
}

/// The folder takes its final mode last: until then nobody else can look in.
TreeBuilder::Written TreeBuilder::finish_folder()
{
    if (plan_.present)
        copy_attributes(calls_, plan_.present->folder.get(), sibling_.folder);
    else if (const Descriptor file = open_file(calls_, sibling_.folder, plan_.layout.mainFile.c_str(), O_RDONLY)) {
        // A new folder may be entered by whoever may read the new file, as the user's umask has it.
        struct stat status = {};
        if (calls_.status(file.get(), status) == 0)
            calls_.set_mode(sibling_.folder, 0700 | (status.st_mode & 0777) | ((status.st_mode & 0444) >> 2));
    }
    struct stat status = {};
    if (calls_.status(sibling_.folder, status) != 0)
        return fail(save_error(SaveStep::build, sibling_.path, errno));
    built_.fingerprint.listing.device = status.st_dev;
    built_.fingerprint.listing.inode = status.st_ino;
    return flush(calls_, sibling_.folder, sibling_.path);
}

Result<FileStamp, SaveError> TreeBuilder::write_blob(
    const TargetFolder& target, const std::string& name, const Blob& blob)
{
    const BlobSource source = blob.source();
    if (const auto* bytes = std::get_if<Shared<std::string>>(&source))
        return write_new_file(calls_, target, name, **bytes, -1);
    const StoredFile& file = std::get<StoredFile>(source);
    if (plan_.present && file.tree.get() == plan_.presentTree) {
        const Descriptor& folder = file.folder.empty() ? plan_.present->folder : plan_.present->attachments;
        return take_own(target, name, folder.get(), file.name, file.stamp);
    }
    return take_file(target, name, file);
}

/// A file from elsewhere.
Result<FileStamp, SaveError> TreeBuilder::take_file(
    const TargetFolder& target, const std::string& name, const StoredFile& file)
{
    const Descriptor opened = open_stored(file, calls_);
    if (!opened && (errno == ENOENT || errno == ENOTDIR || errno == ELOOP))
        return fail(SaveError{SaveProblem::attachmentLost, SaveStep::build, file.name, errno});
    if (!opened)
        return fail(save_error(SaveStep::build, join_path(file.tree->path(), file.name), errno));
    auto taken = clone_or_copy(target, name, opened.get(), file.stamp);
    if (!taken && taken.error().problem == SaveProblem::changedOnDisk)
        return fail(SaveError{SaveProblem::attachmentLost, SaveStep::build, file.name, 0});
    return taken;
}

/// A file system that cannot clone is not asked again.
Result<FileStamp, SaveError> TreeBuilder::clone_or_copy(
    const TargetFolder& target, const std::string& name, int from, const FileStamp& stamp)
{
    if (clones_ != Clones::refused && plan_.reuse != Reuse::copies) {
        const auto cloned = clone_file(calls_, target, name, from, stamp);
        if (!cloned)
            return fail(cloned.error());
        clones_ = *cloned ? Clones::made : Clones::refused;
        if (*cloned)
            return **cloned;
    }
    return copy_file(calls_, target, name, from, stamp);
}

/// An unchanged file of the very package that is being replaced: a clone where clones are made, else a link, else
/// a copy. A clone is the best: a program that writes into the attachment then leaves the displaced state alone.
Result<FileStamp, SaveError> TreeBuilder::take_own(const TargetFolder& target, const std::string& name, int folder,
    const std::string& own_name, const FileStamp& stamp)
{
    if (plan_.reuse == Reuse::links && !makes_clones(target)) {
        const auto linked = link_file(calls_, target, folder, own_name, name, stamp);
        if (!linked)
            return fail(linked.error());
        if (*linked)
            return stamp;
    }
    const Descriptor file = open_file(calls_, folder, own_name.c_str(), O_RDONLY);
    if (!file)
        return fail(save_error(SaveStep::build, join_path(target.path, own_name), errno));
    return clone_or_copy(target, name, file.get(), stamp);
}

/// Tried once with nameless files: a first attachment that is copied to find out may be big.
bool TreeBuilder::makes_clones(const TargetFolder& target)
{
    if (clones_ == Clones::unknown) {
        const Descriptor from = open_file(calls_, target.folder, ".", O_RDWR | O_TMPFILE, 0600);
        const Descriptor to = open_file(calls_, target.folder, ".", O_RDWR | O_TMPFILE, 0600);
        const bool cloned = from && to && calls_.clone(to.get(), from.get()) == 0;
        clones_ = cloned ? Clones::made : Clones::refused;
    }
    return clones_ == Clones::made;
}

/// Closed when there is no such file to take attributes from. Looked at first: a FIFO of that name is not opened.
Descriptor TreeBuilder::present_file(const std::string& name)
{
    struct stat status = {};
    if (!plan_.present || calls_.status_at(plan_.present->folder.get(), name.c_str(), status) != 0
        || !S_ISREG(status.st_mode))
        return {};
    return open_file(calls_, plan_.present->folder.get(), name.c_str(), O_RDONLY);
}

} // namespace

Result<BuiltTree, SaveError> build_tree(SystemCalls& calls, const TargetFolder& sibling, const BuildPlan& plan)
{
    return TreeBuilder(calls, sibling, plan).build();
}

} // namespace quillfern::platform
