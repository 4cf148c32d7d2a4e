#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

namespace tessera {

/// The part of a long text that is still needed, in one piece of memory. It grows only when what is kept does
/// not fit.
class SlidingWindow
{
public:
    /// The text that is held.
    std::string_view text() const { return std::string_view(m_bytes).substr(m_start, m_size); }

    /// Lets go of the first `count` bytes.
    void drop(std::size_t count)
    {
        m_start += count;
        m_size -= count;
    }

    /// Room for at least `count` bytes after the text; they are counted in by extend(). Moves the text.
    std::span<char> room(std::size_t count)
    {
        const auto asItIs = [](char*, std::size_t size) { return size; };
        std::copy_n(m_bytes.begin() + static_cast<std::ptrdiff_t>(m_start), m_size, m_bytes.begin());
        m_start = 0;
        if (m_size + count > m_bytes.size())
            m_bytes.resize_and_overwrite(std::max(m_size + count, m_bytes.size() * 2), asItIs);
        return std::span(m_bytes).subspan(m_size);
    }
    void extend(std::size_t count) { m_size += count; }

private:
    std::string m_bytes; ///< what of it is text begins and ends somewhere
    std::size_t m_start = 0;
    std::size_t m_size = 0;
};

} // namespace tessera
