#include "bios/biosentry.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tessera {

namespace {

constexpr char biosKey[] = "bios";
constexpr char romKey[] = "rom";
constexpr char nameKey[] = "name";
constexpr char childrenKey[] = "children";

BiosEntries entriesOf(const PropertyList& array)
{
    BiosEntries entries;
    for (PropertyList& node : array.items()) {
        if (node.kind() != PropertyList::Kind::Dictionary)
            continue;
        BiosEntry entry{node.text(biosKey).value_or(QString()),
                        node.text(romKey).value_or(QString()),
                        node.text(nameKey).value_or(QString()),
                        {}};
        if (const auto children = node.value(childrenKey))
            entry.children = entriesOf(*children);
        node.remove(childrenKey);
        entry.kept = std::move(node);
        entries.push_back(std::move(entry));
    }
    return entries;
}

PropertyList arrayOf(const BiosEntries& entries)
{
    PropertyList array = PropertyList::array();
    for (const BiosEntry& entry : entries) {
        PropertyList node = entry.kept.value_or(PropertyList::dictionary());
        node.setText(biosKey, entry.bios);
        node.setText(romKey, entry.rom);
        node.setText(nameKey, entry.name);
        if (!entry.children.empty())
            node.set(childrenKey, arrayOf(entry.children));
        array.append(std::move(node));
    }
    return array;
}

void collectNames(const BiosEntries& entries, QStringList& names)
{
    for (const BiosEntry& entry : entries) {
        if (!entry.bios.trimmed().isEmpty() && !names.contains(entry.bios))
            names << entry.bios;
        collectNames(entry.children, names);
    }
}

// A set with entries beneath it is the same whichever of them it begins with.
bool isSame(const BiosEntry& one, const BiosEntry& other)
{
    const bool areSets = !one.children.empty() && !other.children.empty();
    return one.rom == other.rom && (areSets || one.bios == other.bios);
}

} // namespace

std::expected<BiosEntries, Failure> readBiosEntries(const QString& path)
{
    const auto list = readPropertyList(path);
    if (!list)
        return std::unexpected(list.error());
    if (list->kind() != PropertyList::Kind::Array)
        return std::unexpected(Failure{"bios_no_list", {path}});
    return entriesOf(*list);
}

std::expected<QByteArray, Failure> biosEntriesXml(const BiosEntries& entries, const QString& path)
{
    return arrayOf(entries).xml(path);
}

BiosEntries mergedBiosEntries(BiosEntries known, const BiosEntries& found)
{
    for (const BiosEntry& entry : found) {
        const auto same
            = std::ranges::find_if(known, [&](const BiosEntry& each) { return isSame(each, entry); });
        if (same == known.end())
            known.push_back(entry);
        else
            same->children = mergedBiosEntries(std::move(same->children), entry.children);
    }
    return known;
}

QStringList biosNames(const BiosEntries& entries)
{
    QStringList names;
    collectNames(entries, names);
    return names;
}

std::vector<int> firstDifference(const BiosEntries& one, const BiosEntries& other)
{
    const auto [left, right] = std::ranges::mismatch(one, other);
    std::vector<int> place{static_cast<int>(right - other.begin())};
    if (left == one.end() || right == other.end() || left->rom != right->rom || left->bios != right->bios
        || left->name != right->name)
        return place;
    const std::vector<int> beneath = firstDifference(left->children, right->children);
    place.insert(place.end(), beneath.begin(), beneath.end());
    return place;
}

bool hasArchive(const QString& folder, const QString& rom)
{
    if (folder.isEmpty() || rom.isEmpty() || rom.contains(u'/') || rom.contains(QChar(0)))
        return false;
    return QFileInfo::exists(folder + u'/' + rom + QStringLiteral(".zip"));
}

} // namespace tessera
