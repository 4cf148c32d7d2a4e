#pragma once

#include "core/failure.h"

#include <cstdint>
#include <expected>
#include <string_view>
#include <vector>

namespace tessera {

/// The set names of what an emulator prints for -listfull, in its order; with the first word of its header,
/// which is not told apart.
class ListedSets
{
public:
    ListedSets() = default;
    explicit ListedSets(std::string_view printed);
    static std::expected<ListedSets, Failure> read(const QString& listfull);

    // The names that were handed out stay where they are.
    ListedSets(ListedSets&&) = default;
    ListedSets& operator=(ListedSets&&) = default;

    std::size_t size() const { return m_ends.size(); }
    std::string_view operator[](std::size_t i) const
    {
        const std::size_t start = i == 0 ? 0 : m_ends[i - 1];
        return std::string_view(m_text.data(), m_text.size()).substr(start, m_ends[i] - start);
    }

private:
    void add(std::string_view word);

    std::vector<char> m_text;
    std::vector<std::uint32_t> m_ends;
};

} // namespace tessera
