#include "platform/locale_text.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unicode/coll.h>
#include <vector>

namespace quillfern::platform {
namespace {

using Collator = std::unique_ptr<icu::Collator>;

Collator new_root_collator()
{
    UErrorCode status = U_ZERO_ERROR;
    Collator collator(icu::Collator::createInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) {
        std::fprintf(stderr, "ICU cannot make a collator: %s\n", u_errorName(status));
        std::abort();
    }
    return collator;
}

std::string sort_key(const icu::Collator& collator, std::string_view text)
{
    const auto unicode = icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
    std::string key(text.size() * 2 + 16, '\0');
    const auto fill = [&] {
        return static_cast<std::size_t>(
            collator.getSortKey(unicode, reinterpret_cast<uint8_t*>(key.data()), static_cast<int32_t>(key.size())));
    };
    const std::size_t length = fill();
    if (length > key.size()) {
        key.resize(length);
        fill();
    }
    key.resize(length - 1); // ICU ends a key with a zero byte
    return key;
}

} // namespace

std::string name_sort_key(std::string_view text)
{
    thread_local const Collator collator = [] {
        Collator made = new_root_collator();
        made->setStrength(icu::Collator::SECONDARY);
        return made;
    }();
    return sort_key(*collator, text);
}

std::string numbered_name_sort_key(std::string_view text)
{
    thread_local const Collator collator = [] {
        Collator made = new_root_collator();
        UErrorCode status = U_ZERO_ERROR;
        made->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
        return made;
    }();
    return sort_key(*collator, text);
}

} // namespace quillfern::platform
