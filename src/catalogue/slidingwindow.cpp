#include "catalogue/slidingwindow.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace tessera {

namespace {

constexpr std::size_t page = 4096;
constexpr std::size_t largeElement = 1 << 20;

constexpr std::size_t roundUp(std::size_t size)
{
    return (size + page - 1) / page * page;
}

} // namespace

void SlidingWindow::drop(std::size_t count)
{
    m_start += count;
    m_size -= count;
}

// What comes is put at the start of a memory page, where the system copies fastest, and always at about the
// same place, which stays in the processor's cache.
std::span<char> SlidingWindow::room(std::size_t count)
{
    // A large element is not moved again and again while it grows.
    const std::size_t filled = m_start + m_size;
    if (m_size >= largeElement && filled + count <= m_capacity)
        return {m_bytes.get() + filled, m_capacity - filled};
    const std::size_t end = roundUp(m_size);
    const std::size_t start = end - m_size;
    if (end + count > m_capacity) {
        const std::size_t capacity = roundUp(std::max(end + count, m_capacity * 2));
        std::unique_ptr<char, Free> bytes(static_cast<char*>(std::aligned_alloc(page, capacity)));
        if (!bytes)
            throw std::bad_alloc();
        if (m_size > 0)
            std::memcpy(bytes.get() + start, m_bytes.get() + m_start, m_size);
        m_bytes = std::move(bytes);
        m_capacity = capacity;
    } else if (m_size > 0) {
        std::memmove(m_bytes.get() + start, m_bytes.get() + m_start, m_size);
    }
    m_start = start;
    return {m_bytes.get() + end, m_capacity - end};
}

} // namespace tessera
