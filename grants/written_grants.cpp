#include "grants/written_grants.h"

#include "grants/grant_file_json.h"
#include "grants/read_back.h"

#include <functional>
#include <utility>

namespace quillfern::grants {
namespace {

// The writer escapes line breaks inside texts and indents what is deeper further, so this stands nowhere else.
constexpr std::string_view list_opening = "\n  \"grants\": [";
constexpr std::string_view first_opening = "\n    ";
constexpr std::string_view next_opening = ",\n    ";
constexpr std::string_view list_closing = "\n  "; ///< before the bracket

std::size_t hash_of(std::string_view text)
{
    return std::hash<std::string_view>{}(text);
}

GrantFile without_grants(GrantFile file)
{
    file.grants.clear();
    return file;
}

/// Puts a file's text together from what stands around its grants and from theirs.
class Assembly {
public:
    Assembly(std::string head, std::size_t room) : text_(std::move(head)) { text_.reserve(room); }

    void add(std::string_view grant)
    {
        text_.append(std::exchange(any_, true) ? next_opening : first_opening).append(grant);
    }

    std::string finish(std::string_view tail) &&
    {
        text_.append(any_ ? list_closing : "").append(tail);
        return std::move(text_);
    }

private:
    std::string text_;
    bool any_ = false;
};

/// Takes `start` off the text, if it starts so.
bool skip(std::string_view& text, std::string_view start)
{
    if (!text.starts_with(start))
        return false;
    text.remove_prefix(start.size());
    return true;
}

/// Where the list of grants opens, behind the bracket.
std::size_t list_start(std::string_view text)
{
    const std::size_t at = text.find(list_opening);
    return at == std::string_view::npos ? at : at + list_opening.size();
}

} // namespace

void WrittenGrants::keep_only(const GrantFile& file)
{
    std::unordered_map<const Grant*, Written> kept;
    kept.reserve(file.grants.size());
    for (const Shared<Grant>& grant : file.grants)
        if (auto known = grants_.extract(&*grant))
            kept.insert(std::move(known));
        else
            kept.try_emplace(&*grant, Written{grant, {}, {}});
    grants_ = std::move(kept);
}

std::string WrittenGrants::text_of(const GrantFile& file)
{
    keep_only(file);
    const std::string around = write_grant_file(without_grants(file));
    std::size_t room = around.size() + list_closing.size();
    for (const Shared<Grant>& grant : file.grants) {
        std::string& text = grants_.at(&*grant).text;
        if (text.empty())
            text = write_grant(*grant);
        room += next_opening.size() + text.size();
    }
    const std::size_t start = list_start(around);
    Assembly whole(around.substr(0, start), room);
    for (const Shared<Grant>& grant : file.grants)
        whole.add(grants_.at(&*grant).text);
    return std::move(whole).finish(std::string_view(around).substr(start));
}

/// The grant's part, off the start of `rest`; empty when it need not be read again, absent when it is not there. What
/// is returned counts as proved from now on: a failure forgets everything.
std::optional<std::string_view> WrittenGrants::take_unproved(std::string_view& rest, const Shared<Grant>& grant)
{
    const auto known = grants_.find(&*grant);
    if (known == grants_.end() || rest.size() < known->second.text.size())
        return std::nullopt;
    const std::string_view part = rest.substr(0, known->second.text.size());
    rest.remove_prefix(part.size());
    const std::size_t hash = hash_of(part);
    return std::exchange(known->second.proved, hash) == hash ? std::string_view() : part;
}

/// Reads the text without what is proved.
bool WrittenGrants::read_unproved(std::string_view text, const GrantFile& file)
{
    const std::size_t start = list_start(text);
    if (start == std::string_view::npos)
        return false;
    GrantFile changed = without_grants(file);
    Assembly unread(std::string(text.substr(0, start)), text.size());
    std::string_view rest = text.substr(start);
    for (const Shared<Grant>& grant : file.grants) {
        if (!skip(rest, &grant == &file.grants.front() ? first_opening : next_opening))
            return false;
        const auto part = take_unproved(rest, grant);
        if (!part)
            return false;
        if (part->empty())
            continue;
        unread.add(*part);
        changed.grants.push_back(grant);
    }
    if (!file.grants.empty() && !skip(rest, list_closing))
        return false;
    return grants::reads_back(std::move(unread).finish(rest), changed);
}

bool WrittenGrants::reads_back(std::string_view text, const GrantFile& file)
{
    const bool fine = read_unproved(text, file);
    if (!fine)
        grants_.clear();
    return fine;
}

} // namespace quillfern::grants
