#include "platform/search_text.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace quillfern::platform {
namespace {

struct Normalizers {
    const icu::Normalizer2* fold = nullptr;
    const icu::Normalizer2* decompose = nullptr;
};

Normalizers get_normalizers()
{
    UErrorCode status = U_ZERO_ERROR;
    const Normalizers made = {
        icu::Normalizer2::getNFKCCasefoldInstance(status), icu::Normalizer2::getNFDInstance(status)};
    if (U_FAILURE(status)) {
        std::fprintf(stderr, "ICU cannot normalize: %s\n", u_errorName(status));
        std::abort();
    }
    return made;
}

bool is_ascii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string ascii_lower(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

icu::UnicodeString without_marks(const icu::UnicodeString& decomposed)
{
    icu::UnicodeString plain;
    for (int32_t at = 0; at < decomposed.length(); at = decomposed.moveIndex32(at, 1)) {
        const UChar32 code_point = decomposed.char32At(at);
        if (u_charType(code_point) != U_NON_SPACING_MARK)
            plain.append(code_point);
    }
    return plain;
}

} // namespace

std::string search_fold(std::string_view utf8)
{
    if (is_ascii(utf8))
        return ascii_lower(utf8);
    static const Normalizers normalizers = get_normalizers();
    UErrorCode status = U_ZERO_ERROR;
    const auto text = icu::UnicodeString::fromUTF8(icu::StringPiece(utf8.data(), static_cast<int32_t>(utf8.size())));
    const icu::UnicodeString decomposed =
        normalizers.decompose->normalize(normalizers.fold->normalize(text, status), status);
    if (U_FAILURE(status))
        return std::string(utf8);
    std::string folded;
    without_marks(decomposed).toUTF8String(folded);
    return folded;
}

} // namespace quillfern::platform
