#include "platform/text_decoding.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <simdjson.h>
#include <unicode/ucnv.h>

namespace quillfern::platform {
namespace {

struct CloseConverter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

/// The names are ICU's own built-in ones: failing to open one means a broken installation.
Converter open_converter(const char* encoding)
{
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(encoding, &status));
    if (U_FAILURE(status)) {
        std::fprintf(stderr, "ICU has no converter for %s: %s\n", encoding, u_errorName(status));
        std::abort();
    }
    return converter;
}

std::string to_utf8(const char* encoding, std::string_view bytes)
{
    const Converter from = open_converter(encoding);
    const Converter to = open_converter("UTF-8");
    std::array<UChar, 4096> pivot{};
    UChar* pivot_source = pivot.data();
    UChar* pivot_target = pivot.data();
    const char* source = bytes.data();
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 4);
    std::array<char, 16384> chunk{};
    UErrorCode status = U_BUFFER_OVERFLOW_ERROR;
    for (UBool first = 1; status == U_BUFFER_OVERFLOW_ERROR; first = 0) {
        status = U_ZERO_ERROR;
        char* target = chunk.data();
        ucnv_convertEx(to.get(), from.get(), &target, chunk.data() + chunk.size(), &source, bytes.data() + bytes.size(),
            pivot.data(), &pivot_source, &pivot_target, pivot.data() + pivot.size(), first, 1, &status);
        text.append(chunk.data(), target);
    }
    return text;
}

bool is_undefined_in_windows_1252(char byte)
{
    return byte == '\x81' || byte == '\x8D' || byte == '\x8F' || byte == '\x90' || byte == '\x9D';
}

} // namespace

bool is_valid_utf8(std::string_view bytes)
{
    return simdjson::validate_utf8(bytes.data(), bytes.size());
}

bool has_utf16_mark(std::string_view bytes)
{
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

std::string decode_utf16(std::string_view bytes)
{
    return to_utf8("UTF-16", bytes);
}

std::optional<std::string> decode_windows_1252(std::string_view bytes)
{
    // ICU's converter turns the undefined bytes into control characters instead of refusing them.
    if (std::any_of(bytes.begin(), bytes.end(), is_undefined_in_windows_1252))
        return std::nullopt;
    return to_utf8("windows-1252", bytes);
}

std::string decode_mac_roman(std::string_view bytes)
{
    return to_utf8("macintosh", bytes);
}

} // namespace quillfern::platform
