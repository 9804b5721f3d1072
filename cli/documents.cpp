#include "cli/documents.h"

#include "cli/save_words.h"
#include "grants/package_messages.h"

#include <cstring>
#include <filesystem>

namespace quillfern::cli {

using grants::PackageError;

namespace {

std::string file_name(const std::string& path)
{
    const std::filesystem::path whole(path);
    return (whole.has_filename() ? whole.filename() : whole.parent_path().filename()).string();
}

/// The document's own message, and what exactly was found.
std::string why_not(const PackageError& error, const std::string& path)
{
    const grants::PackageMessage message = grants::package_message(error, file_name(path));
    const std::string found = error.text.empty() ? "" : " (" + error.text + ")";
    return message.title + ' ' + message.text + found;
}

std::string why_not(const platform::LockError& error, const std::string& path)
{
    if (!error.held)
        return path + " could not be locked (" + error.path + ": " + std::strerror(error.systemError) + ").";
    std::string holder;
    if (error.holder.process != 0)
        holder = " (process " + std::to_string(error.holder.process) + ")";
    return path + " is open in another program" + holder + ". Close it there first.";
}

} // namespace

Result<grants::OpenedPackage, std::string> open_organization(
    const std::string& path, const platform::DocumentLock* lock)
{
    auto opened = grants::read_package(path, lock);
    if (!opened)
        return fail(why_not(opened.error(), path));
    return std::move(opened).value();
}

Result<platform::DocumentLock, std::string> lock_document(const std::string& path)
{
    auto lock = platform::DocumentLock::acquire(path);
    if (!lock)
        return fail(why_not(lock.error(), path));
    return std::move(lock).value();
}

std::string loss_refusal(const ReadNotes& notes)
{
    return "Nothing was written: saving would lose what could not be read (" + notes.front() + ").";
}

Result<Done, std::string> save_organization(grants::OpenedPackage& document, const platform::DocumentLock& lock)
{
    if (!document.notes.empty())
        return fail(loss_refusal(document.notes));
    const auto saved = grants::write_package(document.package, *document.place, lock);
    if (!saved)
        return fail(grants::save_error_text(saved.error()));
    return Done();
}

Result<Done, std::string> write_organization(const grants::OrgPackage& package, const std::string& path, bool force)
{
    const auto lock = lock_document(path);
    if (!lock)
        return fail(lock.error());
    const auto existing = force ? platform::Existing::replacePackage : platform::Existing::refuse;
    const auto written = grants::write_package_as(package, path, existing, platform::Ownership::copy, *lock);
    if (!written)
        return fail(save_refusal(written.error(), path));
    return Done();
}

} // namespace quillfern::cli
