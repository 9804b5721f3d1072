#pragma once

#include "grants/grant_file.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace quillfern::app {

/// The funders of a file by their id. Of two with one id, the first gives the name.
class FunderNames {
public:
    explicit FunderNames(const grants::GrantFile& file)
    {
        for (const grants::Funder& funder : file.funders)
            names_.try_emplace(funder.id, funder.name);
    }

    /// Empty for a grant without a funder, and for an id that no funder has.
    const std::string& of(const std::optional<Uuid>& funder) const
    {
        static const std::string none;
        const auto found = funder ? names_.find(*funder) : names_.end();
        return found == names_.end() ? none : found->second;
    }

private:
    std::unordered_map<Uuid, std::string> names_;
};

} // namespace quillfern::app
