#include "cli/save_words.h"

#include "grants/package_messages.h"

namespace quillfern::cli {

std::string save_refusal(const platform::SaveError& error, const std::string& path)
{
    if (error.problem == platform::SaveProblem::exists)
        return "There is already something at " + path + "; --force replaces it.";
    return grants::save_error_text(error);
}

} // namespace quillfern::cli
