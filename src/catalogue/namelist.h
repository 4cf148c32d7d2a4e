#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace tessera {

/// Tens of thousands of names in their order, in one piece of memory, which moves with the list.
class NameList
{
public:
    void add(std::string_view name)
    {
        m_text.insert(m_text.end(), name.begin(), name.end());
        m_ends.push_back(static_cast<std::uint32_t>(m_text.size()));
    }
    void reserve(std::size_t names, std::size_t letters)
    {
        m_ends.reserve(names);
        m_text.reserve(letters);
    }
    std::size_t size() const { return m_ends.size(); }
    std::string_view operator[](std::size_t i) const
    {
        const std::size_t start = i == 0 ? 0 : m_ends[i - 1];
        return {m_text.data() + start, m_ends[i] - start};
    }

private:
    std::vector<char> m_text;
    std::vector<std::uint32_t> m_ends;
};

} // namespace tessera
