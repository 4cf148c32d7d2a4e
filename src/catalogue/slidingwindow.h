#pragma once

#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>

namespace tessera {

/// The part of a long text that is still needed, in one piece of memory. It grows only when what is kept does
/// not fit.
class SlidingWindow
{
public:
    /// The text that is held.
    std::string_view text() const { return {m_bytes.get() + m_start, m_size}; }

    /// Lets go of the first `count` bytes.
    void drop(std::size_t count);

    /// Room for at least `count` bytes after the text; they are counted in by extend(). Moves the text.
    std::span<char> room(std::size_t count);
    void extend(std::size_t count) { m_size += count; }

private:
    struct Free {
        void operator()(char* bytes) const { std::free(bytes); }
    };
    std::unique_ptr<char, Free> m_bytes;
    std::size_t m_capacity = 0;
    std::size_t m_start = 0;
    std::size_t m_size = 0;
};

} // namespace tessera
