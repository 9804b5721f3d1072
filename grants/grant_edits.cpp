#include "grants/grant_edits.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace quillfern::grants {
namespace {

using Names = std::set<std::string, std::less<>>;
using Grants = std::vector<Shared<Grant>>;

Names stored_names(Grants::const_iterator begin, Grants::const_iterator end)
{
    Names names;
    for (auto grant = begin; grant != end; ++grant)
        for (const Attachment& attachment : (*grant)->attachments)
            names.insert(attachment.storedName);
    return names;
}

} // namespace

OrgPackage without_grant(const OrgPackage& package, const Uuid& grant)
{
    OrgPackage changed = package;
    Grants& grants = changed.file.grants;
    const auto removed = std::stable_partition(
        grants.begin(), grants.end(), [&](const Shared<Grant>& each) { return each->id != grant; });
    const Names kept = stored_names(grants.begin(), removed);
    Names dropped = stored_names(removed, grants.end());
    grants.erase(removed, grants.end());

    std::erase_if(
        dropped, [&](const std::string& name) { return kept.contains(name) || !package.attachments->contains(name); });
    if (!dropped.empty())
        changed.attachments = changed.attachments.with([&](AttachmentBytes& files) {
            for (const std::string& name : dropped)
                files.erase(name);
        });
    return changed;
}

} // namespace quillfern::grants
