#include "platform/settle.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace quillfern::platform {
namespace {

class Settling {
public:
    Settling(SystemCalls& calls, PackagePlace& place, const SaveRequest& request, SaveOutcome& outcome)
        : calls_(calls), place_(place), request_(request), outcome_(outcome), document_(place.tree->path())
    {
    }

    void settle(const Displaced& displaced);
    void settle_kept(const KeptTree& kept);
    void thin_out();

private:
    void keep(const std::shared_ptr<TreeLocation>& tree, int error, bool is_ours = false, bool holds_more = false)
    {
        outcome_.displacedError = error;
        place_.keptTrees.push_back({tree, is_ours, holds_more});
    }

    void put_away(const std::shared_ptr<TreeLocation>& tree, bool holds_more);
    void keep_conflict(const std::shared_ptr<TreeLocation>& tree);
    int carry_over_late(const Displaced& displaced, const PackageListing& now);

    SystemCalls& calls_;
    PackagePlace& place_;
    const SaveRequest& request_;
    SaveOutcome& outcome_;
    std::string document_;
};

void Settling::settle(const Displaced& displaced)
{
    const Descriptor folder = open_folder(calls_, displaced.tree->path());
    if (!folder)
        return keep(displaced.tree, errno);
    const auto now = list_package(calls_, folder.get(), request_.layout);
    if (!now)
        return keep(displaced.tree, now.error());
    const auto difference = compare_with(calls_, displaced.expected, *now, folder.get(), request_.layout);
    if (!difference)
        return keep(displaced.tree, difference.error());
    if (*difference != Difference::none)
        return keep_conflict(displaced.tree);
    if (const int error = carry_over_late(displaced, *now))
        return keep(displaced.tree, error);
    put_away(displaced.tree, std::exchange(place_.holdsMore, false));
}

void Settling::keep_conflict(const std::shared_ptr<TreeLocation>& tree)
{
    if (const auto kept = keep_as_conflict(calls_, tree, document_, request_.today); !kept)
        keep(tree, kept.error());
    outcome_.conflict = tree->path();
}

/// Attachments that came between the first look and the exchange.
int Settling::carry_over_late(const Displaced& displaced, const PackageListing& now)
{
    std::vector<std::string> late;
    for (const auto& [name, stamp] : now.attachments) {
        if (displaced.expected.listing.attachments.contains(name) || request_.contents.attachments.contains(name))
            continue;
        late.push_back(join_path(request_.layout.attachmentsFolder, name));
        if (place_.arrived.insert(name).second)
            outcome_.arrived.push_back(name);
    }
    return move_entries(calls_, displaced.tree->path(), document_, late);
}

void Settling::put_away(const std::shared_ptr<TreeLocation>& tree, bool holds_more)
{
    if (!request_.displaced) {
        if (const int error = discard_tree(calls_, tree, document_, request_.layout))
            keep(tree, error, true, holds_more);
        return;
    }
    if (const auto taken = request_.displaced->take(document_, tree); !taken)
        return keep(tree, taken.error(), true, holds_more);
    outcome_.displaced = tree->path();
}

void Settling::settle_kept(const KeptTree& kept)
{
    if (kept.isOurs)
        put_away(kept.tree, kept.holdsMore);
    else
        keep_conflict(kept.tree);
}

/// A store that takes nothing must not fill the document's disk: of our previous states the newest stays.
void Settling::thin_out()
{
    auto& kept = place_.keptTrees;
    const auto is_ours = [](const KeptTree& each) { return each.isOurs; };
    const auto newest = std::find_if(kept.rbegin(), kept.rend(), is_ours);
    const auto tree = newest == kept.rend() ? nullptr : newest->tree;
    std::erase_if(kept, [&](const KeptTree& each) {
        return each.isOurs && !each.holdsMore && each.tree != tree
            && discard_tree(calls_, each.tree, document_, request_.layout) == 0;
    });
}

} // namespace

std::shared_ptr<TreeLocation> set_apart(
    const std::shared_ptr<TreeLocation>& tree, const std::string& path, const PackageContents& adopted)
{
    std::unordered_set<const void*> kept;
    for (const auto& [name, blob] : adopted.attachments)
        kept.insert(blob.identity());
    if (adopted.logo)
        kept.insert(adopted.logo->identity());
    auto displaced = std::make_shared<TreeLocation>(path);
    for (const Blob& blob : tree->living()) {
        if (kept.contains(blob.identity()))
            continue;
        StoredFile file = std::get<StoredFile>(blob.source());
        file.tree = displaced;
        blob.move_to(std::move(file));
    }
    return displaced;
}

void adopt(const PackageContents& contents, const PackageLayout& layout, const PackageListing& saved,
    const std::shared_ptr<TreeLocation>& tree, bool keep_memory)
{
    const auto move = [&](const Blob& blob, const std::string& folder, const std::string& name, FileStamp stamp) {
        if (!keep_memory || std::holds_alternative<StoredFile>(blob.source()))
            blob.move_to(StoredFile{tree, folder, name, stamp});
    };
    for (const auto& [name, blob] : contents.attachments)
        move(blob, layout.attachmentsFolder, name, saved.attachments.at(name));
    if (contents.logo && saved.logo)
        move(*contents.logo, "", layout.logoFile, *saved.logo);
}

void settle(SystemCalls& calls, PackagePlace& place, const SaveRequest& request, const Displaced& displaced,
    SaveOutcome& outcome)
{
    const auto kept_before = std::exchange(place.keptTrees, {});
    Settling settling(calls, place, request, outcome);
    for (const KeptTree& kept : kept_before)
        settling.settle_kept(kept);
    if (displaced.tree)
        settling.settle(displaced);
    settling.thin_out();
}

} // namespace quillfern::platform
