#include "cli/text_table.h"

#include "platform/display_width.h"

#include <algorithm>

namespace quillfern::cli {

void TextTable::heading(std::string_view text)
{
    std::string line(lines_.empty() ? "" : "\n");
    line += platform::on_one_line(text);
    lines_.push_back({std::move(line), {}});
}

void TextTable::line(std::string_view text)
{
    lines_.push_back({"  " + platform::on_one_line(text), {}});
}

void TextTable::row(std::vector<std::string> cells)
{
    for (std::string& cell : cells)
        cell = platform::on_one_line(cell);
    lines_.push_back({{}, std::move(cells)});
}

std::vector<std::size_t> TextTable::widths() const
{
    std::vector<std::size_t> widths(columns_.size());
    for (const Line& line : lines_)
        for (std::size_t i = 0; i < line.cells.size(); ++i)
            widths[i] = std::max(widths[i], platform::display_width(line.cells[i]));
    return widths;
}

std::string TextTable::row_text(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths) const
{
    std::string text;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (widths[i] == 0)
            continue;
        const std::string padding(widths[i] - platform::display_width(cells[i]), ' ');
        text += "  " + (columns_[i] == right ? padding + cells[i] : cells[i] + padding);
    }
    text.erase(text.find_last_not_of(' ') + 1);
    return text + '\n';
}

std::string TextTable::text() const
{
    const std::vector<std::size_t> widths = this->widths();
    std::string text;
    for (const Line& line : lines_)
        text += line.cells.empty() ? line.text + '\n' : row_text(line.cells, widths);
    return text;
}

} // namespace quillfern::cli
