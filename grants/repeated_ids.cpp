#include "grants/repeated_ids.h"

#include <string>
#include <unordered_map>

namespace quillfern::grants {
namespace {

template <class Record>
const Uuid& id_of(const Record& record)
{
    return record.id;
}

const Uuid& id_of(const Shared<Grant>& grant)
{
    return grant->id;
}

/// `path` leads to the list: grants[2].payments
template <class List>
void note_repeated(const List& list, const std::string& path, ReadNotes& notes)
{
    std::unordered_map<Uuid, std::size_t> first_with;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto [first, is_new] = first_with.emplace(id_of(list[i]), i);
        if (!is_new)
            notes.push_back(path + '[' + std::to_string(i) + "].id: " + path + '[' + std::to_string(first->second)
                + "] has the same id");
    }
}

} // namespace

ReadNotes repeated_ids(const GrantFile& file)
{
    ReadNotes notes;
    note_repeated(file.grants, "grants", notes);
    for (std::size_t i = 0; i < file.grants.size(); ++i) {
        const Grant& grant = file.grants[i];
        const std::string path = "grants[" + std::to_string(i) + "].";
        note_repeated(grant.attachments, path + "attachments", notes);
        note_repeated(grant.milestones, path + "milestones", notes);
        note_repeated(grant.payments, path + "payments", notes);
        note_repeated(grant.reports, path + "reports", notes);
    }
    return notes;
}

} // namespace quillfern::grants
