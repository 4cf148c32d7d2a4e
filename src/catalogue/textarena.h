#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace tessera {

/// Holds texts that are never changed and never moved: a view that it gave out stays good as long as the
/// arena lives, also while the arena itself is moved.
class TextArena
{
public:
    TextArena() = default;
    TextArena(TextArena&& other) noexcept;
    TextArena& operator=(TextArena&& other) noexcept;

    /// A copy of the text. It has data even when it is empty: a view without data is an absent value.
    std::string_view add(std::string_view text)
    {
        if (text.empty())
            return emptyText;
        if (text.size() > m_free || m_next == nullptr)
            grow(text.size());
        char* const copy = m_next;
        std::memcpy(copy, text.data(), text.size());
        m_next += text.size();
        m_free -= text.size();
        return {copy, text.size()};
    }

    /// The next `bytes` bytes go into one block.
    void reserve(std::size_t bytes);

    /// Bytes of all texts and of the room kept for more.
    std::size_t capacity() const { return m_capacity; }

private:
    static constexpr std::string_view emptyText = "";

    void grow(std::size_t bytes);

    std::vector<std::unique_ptr<char[]>> m_blocks;
    char* m_next = nullptr;
    std::size_t m_free = 0;
    std::size_t m_capacity = 0;
};

} // namespace tessera
