#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace tessera {

struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
};

/// Set names, to be asked for a record's.
using NameSet = std::unordered_set<std::string, NameHash, std::equal_to<>>;

} // namespace tessera
