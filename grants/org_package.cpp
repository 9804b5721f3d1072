#include "grants/org_package.h"

#include "grants/grant_file_json.h"
#include "grants/written_grants.h"
#include "platform/clock.h"
#include "platform/package_move.h"
#include "platform/package_reader.h"
#include "platform/random_uuid.h"

#include <cerrno>
#include <cstring>

namespace quillfern::grants {
namespace {

using platform::PackageProblem;
using Reason = PackageError::Reason;

const platform::PackageLayout& layout()
{
    static const platform::PackageLayout names{
        .mainFile = "Quillfern.json", .attachmentsFolder = "Attachments", .logoFile = logo_file_name};
    return names;
}

FreshValues fresh_values()
{
    return {platform::random_uuid, platform::now()};
}

PackageError package_error(const platform::PackageReadError& error)
{
    const std::string system = error.systemError != 0 ? std::strerror(error.systemError) : "";
    switch (error.problem) {
    case PackageProblem::notFound:
    case PackageProblem::notAPackage:
        return {Reason::notAPackage, system};
    case PackageProblem::missingMainFile:
        return {Reason::missingData, layout().mainFile + " is missing"};
    case PackageProblem::tooLarge:
        return {Reason::unreadable, layout().mainFile + " is larger than 256 MB"};
    case PackageProblem::unreadable:
        break;
    }
    return {Reason::unreadable, system};
}

PackageError package_error(const GrantFileError& error)
{
    if (const auto* newer = std::get_if<NewerFormat>(&error))
        return {Reason::newerFormat, std::string(newer->what) + " " + std::to_string(newer->formatVersion)};
    return {Reason::unreadable, std::get<ReadError>(error).text()};
}

platform::PackageContents contents_of(const OrgPackage& package, WrittenGrants& written)
{
    return {.mainText = written.text_of(package.file), .attachments = *package.attachments, .logo = package.logo};
}

platform::SaveRequest request_for(const OrgPackage& package, const platform::PackageContents& contents,
    WrittenGrants& written, platform::DisplacedTrees* displaced)
{
    return {.layout = layout(),
        .contents = contents,
        .today = today_here().text(),
        .readsBack = [&] { return written.reads_back(contents.mainText, package.file); },
        .displaced = displaced};
}

} // namespace

Result<OpenedPackage, PackageError> read_package(
    const std::string& path, const platform::DocumentLock* lock, platform::DisplacedTrees* displaced)
{
    auto folder = platform::read_package_folder(path, layout(), lock);
    if (!folder)
        return fail(package_error(folder.error()));
    auto decoded = read_grant_file(std::move(folder->contents.mainText), fresh_values());
    if (!decoded)
        return fail(package_error(decoded.error()));
    if (lock)
        platform::clean_leftovers(*folder->place, layout(), displaced, *lock);
    folder->place->holdsMore = !decoded->notes.empty();
    return OpenedPackage{
        .package = {std::move(decoded->file), std::move(folder->contents.attachments), folder->contents.logo},
        .notes = std::move(decoded->notes),
        .unknownEntries = std::move(folder->unknownEntries),
        .place = std::move(folder->place)};
}

Result<platform::SaveOutcome, platform::SaveError> write_package(const OrgPackage& package,
    platform::PackagePlace& place, const platform::DocumentLock& lock, platform::DisplacedTrees* displaced)
{
    if (!place.encoderMemory.has_value())
        place.encoderMemory = WrittenGrants{};
    auto& written = std::any_cast<WrittenGrants&>(place.encoderMemory);
    const platform::PackageContents contents = contents_of(package, written);
    return platform::save_package(place, request_for(package, contents, written, displaced), lock);
}

Result<platform::NewPackage, platform::SaveError> write_package_as(const OrgPackage& package, const std::string& path,
    platform::Existing existing, platform::Ownership ownership, const platform::DocumentLock& lock,
    platform::DisplacedTrees* displaced)
{
    WrittenGrants written;
    const platform::PackageContents contents = contents_of(package, written);
    auto made =
        platform::save_package_as(path, request_for(package, contents, written, displaced), existing, ownership, lock);
    if (made)
        made->place->encoderMemory = std::move(written);
    return made;
}

platform::PackageChange compare_with_disk(const platform::PackagePlace& place)
{
    return platform::compare_with_disk(place, layout());
}

void hand_over(const platform::PackagePlace& before, const platform::PackagePlace& now)
{
    platform::hand_over(before, now, layout());
}

int clear_leftovers(
    const platform::PackagePlace& place, const platform::DocumentLock& lock, platform::DisplacedTrees* displaced)
{
    return platform::clean_leftovers(place, layout(), displaced, lock);
}

Result<std::shared_ptr<platform::PackagePlace>, platform::SaveError> move_package(const OrgPackage& package,
    const std::shared_ptr<platform::PackagePlace>& place, const std::string& path,
    const platform::DocumentLock& old_lock, const platform::DocumentLock& new_lock, platform::DisplacedTrees* displaced)
{
    const auto moved = platform::move_package(*place, path, layout(), old_lock, new_lock);
    if (moved)
        return place;
    if (moved.error().systemError != EXDEV)
        return fail(moved.error());
    auto written =
        write_package_as(package, path, platform::Existing::refuse, platform::Ownership::document, new_lock, displaced);
    if (!written && written.error().problem == platform::SaveProblem::notFlushed) {
        auto refused = written.error();
        refused.problem = platform::SaveProblem::failed; // it has not moved
        return fail(refused);
    }
    if (!written)
        return fail(written.error());
    // Only now: the document is whole at its new place. What the old tree holds was looked at before the move.
    if (displaced)
        (void)displaced->take(place->tree->path(), place->tree);
    return written->place;
}

} // namespace quillfern::grants
