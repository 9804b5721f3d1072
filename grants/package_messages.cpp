#include "grants/package_messages.h"

#include <cstring>

namespace quillfern::grants {
namespace {

using platform::SaveError;
using platform::SaveProblem;

std::string quoted(std::string_view name)
{
    return "“" + std::string(name) + "”";
}

std::string reason_text(const SaveError& error)
{
    const std::string path = quoted(error.path);
    switch (error.problem) {
    case SaveProblem::changedOnDisk:
        return path + " was changed by someone else since it was opened.";
    case SaveProblem::gone:
        return path + " is not there any more.";
    case SaveProblem::exists:
        return path + " already exists.";
    case SaveProblem::notAPackage:
        return path + " is something else and is not replaced.";
    case SaveProblem::readOnly:
        return path + " can’t be written to.";
    case SaveProblem::diskFull:
        return "The disk is full.";
    case SaveProblem::noFolder:
        return "There is no folder " + path + ".";
    case SaveProblem::attachmentLost:
        return "The attached file " + path + " can’t be read any more.";
    case SaveProblem::badContents:
        return "The document holds something that can’t be written.";
    case SaveProblem::notFlushed:
        return "The disk did not confirm that everything was written.";
    case SaveProblem::failed:
        break;
    }
    return path + ": " + std::strerror(error.systemError) + ".";
}

} // namespace

PackageMessage package_message(const PackageError& error, std::string_view file_name)
{
    const std::string product(product_name);
    if (error.reason == PackageError::Reason::newerFormat)
        return {"This file was saved by a newer version of " + product + ".",
            "Update the app (" + product
                + " › Check for Updates…) and open it again. Nothing in the file was changed."};
    return {"This file couldn’t be read.",
        std::string(file_name) + " is missing or damaged. If you have a backup or a Time Machine copy, open that one."};
}

PackageMessage attachment_message(AttachmentError error, std::string_view file_name)
{
    if (error == AttachmentError::tooBig)
        return {"", "Files up to 100 MB can be attached, so the document stays easy to move and back up."};
    return attachment_unreadable(file_name);
}

PackageMessage attachment_unreadable(std::string_view file_name)
{
    return {"", quoted(file_name) + " couldn’t be read"};
}

PackageMessage nothing_attached()
{
    return {"Nothing was attached", "The files couldn’t be read, were empty, or were over 100 MB."};
}

PackageMessage attachment_missing(std::string_view original_name)
{
    return {"This file is missing",
        quoted(original_name) + " isn’t in the document any more. Remove it and attach it again."};
}

std::string save_error_text(const SaveError& error)
{
    const std::string reason = reason_text(error);
    if (error.problem == SaveProblem::notFlushed)
        return reason;
    return reason + " Nothing was changed.";
}

} // namespace quillfern::grants
