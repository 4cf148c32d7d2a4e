#pragma once

#include "catalogue/namelist.h"
#include "core/failure.h"

#include <expected>

namespace tessera {

/// The set names of what an emulator prints for -listfull, in its order; with the first word of its header,
/// which is not told apart.
class ListedSets : public NameList
{
public:
    ListedSets() = default;
    explicit ListedSets(std::string_view printed);
    static std::expected<ListedSets, Failure> read(const QString& listfull);

    // The names that were handed out stay where they are.
    ListedSets(ListedSets&&) = default;
    ListedSets& operator=(ListedSets&&) = default;

private:
    void addWord(std::string_view word);
};

} // namespace tessera
