#pragma once

#include "grants/grant_file.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillfern::grants {

/// The texts of a document's grants as the last save wrote them, so that the next one encodes and reads back only the
/// grants that have changed since. Of a large document that is nearly nothing, and a save then takes little more than
/// the disk does.
///
/// A grant is the same when it is the same shared node, which never changes; it is held here, so that no other can take
/// its address. The texts take as much memory as the file does on the disk.
class WrittenGrants {
public:
    /// The text of the file, the same bytes as write_grant_file() gives.
    std::string text_of(const GrantFile& file);

    /// Whether a text that text_of() gave for this file gives the records back. Every byte of it counts: a grant's part
    /// is either decoded now, or has been before and is still the same.
    bool reads_back(std::string_view text, const GrantFile& file);

private:
    struct Written {
        Shared<Grant> grant;
        std::string text;
        std::optional<std::size_t> proved; ///< hash of the text that gave the grant back; absent when none has yet
    };

    void keep_only(const GrantFile& file);
    std::optional<std::string_view> take_unproved(std::string_view& rest, const Shared<Grant>& grant);
    bool read_unproved(std::string_view text, const GrantFile& file);

    std::unordered_map<const Grant*, Written> grants_;
};

} // namespace quillfern::grants
