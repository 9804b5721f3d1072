#include "grants/sample_files.h"

#include <array>
#include <cstdio>

namespace quillfern::grants {
namespace {

/// The code points of UTF-8 text in the font's encoding, with the PDF string's own characters escaped. Only what the
/// sample's texts need: Latin-1 and the en dash.
std::string pdf_string(std::string_view text)
{
    constexpr std::string_view en_dash = "\u2013";
    std::string escaped = "(";
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text.front());
        std::size_t length = 1;
        if (text.starts_with(en_dash)) {
            escaped += "\\226";
            length = en_dash.size();
        } else if ((byte == 0xC2 || byte == 0xC3) && text.size() > 1) {
            const unsigned code = (byte & 3U) << 6 | (static_cast<unsigned char>(text[1]) & 0x3FU);
            std::array<char, 8> octal{};
            std::snprintf(octal.data(), octal.size(), "\\%03o", code);
            escaped += octal.data();
            length = 2;
        } else if (byte >= 0x80) {
            escaped += byte >= 0xC0 ? "?" : "";
        } else {
            if (byte == '(' || byte == ')' || byte == '\\')
                escaped += '\\';
            escaped += text.front();
        }
        text.remove_prefix(length);
    }
    return escaped + ")";
}

std::string page_content(std::string_view title, const std::vector<std::string>& lines)
{
    std::string content = "BT /F1 18 Tf 72 700 Td " + pdf_string(title) + " Tj /F1 11 Tf 0 -14 Td";
    for (const std::string& line : lines)
        content += " 0 -18 Td " + pdf_string(line) + " Tj";
    return content + " ET";
}

/// Numbers the objects from 1, and writes the table of their places that a PDF ends with (ISO 32000-1, 7.5.4).
std::string assembled(const std::vector<std::string>& objects)
{
    std::string pdf = "%PDF-1.4\n";
    std::string table = "0000000000 65535 f \n";
    for (std::size_t i = 0; i < objects.size(); ++i) {
        std::array<char, 32> entry{};
        std::snprintf(entry.data(), entry.size(), "%010zu 00000 n \n", pdf.size());
        table += entry.data();
        pdf += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const std::string count = std::to_string(objects.size() + 1);
    const std::string start = std::to_string(pdf.size());
    return pdf + "xref\n0 " + count + "\n" + table + "trailer\n<< /Size " + count + " /Root 1 0 R >>\nstartxref\n"
        + start + "\n%%EOF\n";
}

} // namespace

std::string simple_pdf(std::string_view title, const std::vector<std::string>& lines)
{
    const std::string content = page_content(title, lines);
    const std::string page = "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] "
                             "/Resources << /Font << /F1 4 0 R >> >> /Contents 5 0 R >>";
    return assembled({
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        page,
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>",
        "<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "\nendstream",
    });
}

} // namespace quillfern::grants
