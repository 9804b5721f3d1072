#include "app/document/save_words.h"

#include <system_error>

namespace quillfern::app {
namespace {

using platform::SaveError;
using platform::SaveProblem;

std::string reason(const SaveError& error)
{
    switch (error.problem) {
    case SaveProblem::readOnly:
        return "The folder cannot be written to. Choose another one.";
    case SaveProblem::diskFull:
        return "The disk is full. Make room, or choose another disk.";
    case SaveProblem::noFolder:
    case SaveProblem::gone:
        return "The folder is not there any more. Choose another one.";
    case SaveProblem::exists:
        return "The name is taken.";
    case SaveProblem::notAPackage:
        return "A folder or something else that is no file has this name. Choose another name.";
    case SaveProblem::changedOnDisk:
        return "Another program has changed the file in the meantime.";
    case SaveProblem::attachmentLost:
        return "Another program has changed or removed an attached file.";
    case SaveProblem::badContents:
        return "The document holds something that can’t be written.";
    default:
        return error.systemError == 0 ? "The system did not say why."
                                      : std::generic_category().message(error.systemError) + '.';
    }
}

} // namespace

SaveWords save_words(const SaveError& error, std::string_view file_name)
{
    const std::string name = "“" + std::string(file_name) + "”";
    if (error.problem == SaveProblem::notFlushed)
        return {"The disk may not hold " + name,
            "The file was written, but the disk reported an error. Check the file, and save it again elsewhere."};
    return {"Couldn’t save " + name, reason(error) + " Nothing was changed."};
}

} // namespace quillfern::app
