#include "cli/output_file.h"

#include "cli/package_folders.h"
#include "cli/save_words.h"
#include "platform/file_save.h"

namespace quillfern::cli {

Result<Done, std::string> write_output_file(const std::string& path, std::string_view bytes, bool force)
{
    using platform::Overwrite;
    if (is_inside_document(path))
        return fail(path + " lies inside a document, where no export goes. Nothing was changed.");
    const auto saved = platform::save_file(path, bytes, force ? Overwrite::replaceFile : Overwrite::refuse);
    if (!saved)
        return fail(save_refusal(saved.error(), path));
    return Done();
}

} // namespace quillfern::cli
