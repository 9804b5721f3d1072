#include "board/board_json.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace quillfern;

/// Whatever the bytes, reading ends with a board or a refusal; and what was read, however much of it had to be
/// replaced, is written as text that reads back equal, with nothing left to replace, and is then written the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::uint8_t next = 0;
    const FreshValues fresh{[&] {
                                Uuid id;
                                id.bytes = {0x9F, 0x33, 0xC1, 0x5E};
                                id.bytes[15] = ++next;
                                id.bytes[14] = static_cast<std::uint8_t>(size);
                                return id;
                            },
        Instant{}};
    auto first = board::read_board(std::string(reinterpret_cast<const char*>(data), size), fresh);
    if (!first || next > 200) // more records than this source of identifiers can tell apart
        return 0;
    const std::string written = board::write_board(first->board);
    const auto second = board::read_board(written, fresh);
    first->board.formatVersion = board::Board::current_format;
    if (!second || second->board != first->board || !second->notes.empty()
        || board::write_board(second->board) != written)
        std::abort();
    return 0;
}
