#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace tessera {

class DefaultsController;

/// What the user searches for again and again, under a name of their own.
struct KeptSearch {
    QString name;
    QString query;

    bool operator==(const KeptSearch&) const = default;
};

/// The searches that were kept by name, in the user's order. They are in the settings as a list of
/// dictionaries; what is no such thing there counts as nothing.
class KeptSearches
{
public:
    explicit KeptSearches(DefaultsController& defaults);

    std::vector<KeptSearch> all() const;
    /// The place of the one with this name.
    std::optional<std::size_t> placeOf(const QString& name) const;

    /// Behind the others, or in the place of the one with the same name.
    void keep(const KeptSearch& search);
    void rename(std::size_t place, const QString& name);
    void remove(std::size_t place);
    void move(std::size_t from, std::size_t to);

private:
    void store(const std::vector<KeptSearch>& searches);

    DefaultsController& m_defaults;
};

} // namespace tessera
