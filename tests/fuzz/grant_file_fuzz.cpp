#include "grants/grant_file_json.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace quillfern;

/// Whatever the bytes, reading ends with a file or a refusal; and what was read is written as text that reads back
/// equal and is then written the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const FreshValues fresh{[] { return Uuid{}; }, Instant{}};
    auto first = grants::read_grant_file(std::string(reinterpret_cast<const char*>(data), size), fresh);
    if (!first)
        return 0;
    const std::string written = grants::write_grant_file(first->file);
    const auto second = grants::read_grant_file(written, fresh);
    first->file.formatVersion = grants::GrantFile::current_format;
    if (!second || second->file != first->file || grants::write_grant_file(second->file) != written)
        std::abort();
    return 0;
}
