#include "board/board_json.h"

#include "board/record_fields.h"
#include "platform/json_reader.h"
#include "platform/json_writer.h"

#include "base/record_writer.h"

namespace quillfern::board {

Result<BoardRead, quillfern::ReadError> read_board(std::string json, const FreshValues& fresh)
{
    ReadState state(fresh);
    Board board;
    if (!platform::read_json(json, state, board))
        return fail(state.error());
    return BoardRead{std::move(board), std::move(state.notes)};
}

std::string write_board(const Board& board)
{
    constexpr std::size_t usual_meeting_bytes = 12'000;
    Board current = board;
    current.formatVersion = Board::current_format;
    platform::JsonWriter json;
    json.reserve(board.meetings.size() * usual_meeting_bytes + 8192);
    write(json, current);
    return std::move(json).finish();
}

} // namespace quillfern::board
