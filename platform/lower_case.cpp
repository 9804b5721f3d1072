#include "platform/lower_case.h"

#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace quillfern::platform {

std::string lower_case(std::string_view text)
{
    std::string lower;
    icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())})
        .toLower(icu::Locale::getRoot())
        .toUTF8String(lower);
    return lower;
}

} // namespace quillfern::platform
