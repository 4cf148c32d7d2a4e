#include "catalogue/families.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace tessera {

namespace {

constexpr std::uint32_t unknown = 0xFFFF'FFFF;
constexpr std::uint32_t onTheWay = 0xFFFF'FFFE;

// Each record's parent, or itself.
std::vector<std::uint32_t> parents(std::span<const GameRecord> content)
{
    std::unordered_map<std::string_view, std::uint32_t> named;
    named.reserve(content.size());
    for (std::uint32_t i = 0; i < content.size(); ++i)
        named.try_emplace(content[i][Field::Name], i);
    std::vector<std::uint32_t> parents;
    parents.reserve(content.size());
    for (std::uint32_t i = 0; i < content.size(); ++i) {
        const std::string_view parent = content[i][Field::Cloneof];
        const auto found
            = parent == content[i][Field::Name] || parent.empty() ? named.end() : named.find(parent);
        parents.push_back(found == named.end() ? i : found->second);
    }
    return parents;
}

} // namespace

std::vector<std::uint32_t> familyHeads(std::span<const GameRecord> content)
{
    const std::vector<std::uint32_t> parent = parents(content);
    std::vector<std::uint32_t> heads(content.size(), unknown);
    std::vector<std::uint32_t> way;
    for (std::uint32_t i = 0; i < content.size(); ++i) {
        way.clear();
        std::uint32_t at = i;
        for (; heads[at] == unknown; at = parent[at]) {
            heads[at] = onTheWay;
            way.push_back(at);
        }
        // The way ends at a known head, or comes back to itself: a parent does so in one step, a ring in
        // more.
        const std::uint32_t head
            = heads[at] == onTheWay ? *std::min_element(std::ranges::find(way, at), way.end()) : heads[at];
        for (const std::uint32_t record : way)
            heads[record] = head;
    }
    return heads;
}

FamilyRows foldFamilies(std::span<const std::uint32_t> rows, std::span<const std::uint32_t> heads,
                        const RecordSet& open)
{
    std::vector<std::uint32_t> size(heads.size());
    std::vector<std::uint32_t> shown(heads.size(), unknown);
    for (const std::uint32_t record : rows) {
        const std::uint32_t head = heads[record];
        ++size[head];
        if (shown[head] == unknown || record == head)
            shown[head] = record;
    }

    // The clones that are shown all the same, each open family's in one run.
    std::vector<std::uint32_t> begin(heads.size() + 1);
    for (std::uint32_t head = 0; head < heads.size(); ++head)
        begin[head + 1] = begin[head] + (size[head] > 0 && open.contains(head) ? size[head] - 1 : 0);
    std::vector<std::uint32_t> opened(begin.back());
    std::vector<std::uint32_t> next(begin.begin(), begin.end() - 1);
    for (const std::uint32_t record : rows) {
        const std::uint32_t head = heads[record];
        if (record != shown[head] && open.contains(head))
            opened[next[head]++] = record;
    }

    FamilyRows folded;
    for (const std::uint32_t record : rows) {
        const std::uint32_t head = heads[record];
        if (record != shown[head])
            continue;
        folded.rows.push_back(record);
        folded.clones.push_back(size[head] - 1);
        for (std::uint32_t i = begin[head]; i < begin[head + 1]; ++i) {
            folded.rows.push_back(opened[i]);
            folded.clones.push_back(0);
        }
    }
    return folded;
}

} // namespace tessera
