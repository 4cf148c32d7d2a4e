#include "catalogue/textarena.h"

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

// Memory is touched only where text is written, so a generous block costs address space alone.
constexpr std::size_t blockSize = std::size_t{256} * 1024;

} // namespace

TextArena::TextArena(TextArena&& other) noexcept
{
    *this = std::move(other);
}

TextArena& TextArena::operator=(TextArena&& other) noexcept
{
    if (this == &other)
        return *this;
    m_blocks = std::exchange(other.m_blocks, {});
    m_next = std::exchange(other.m_next, nullptr);
    m_free = std::exchange(other.m_free, 0);
    m_capacity = std::exchange(other.m_capacity, 0);
    return *this;
}

void TextArena::reserve(std::size_t bytes)
{
    if (bytes > m_free)
        grow(bytes);
}

void TextArena::grow(std::size_t bytes)
{
    const std::size_t size = std::max(bytes, blockSize);
    m_blocks.push_back(std::make_unique_for_overwrite<char[]>(size));
    m_next = m_blocks.back().get();
    m_free = size;
    m_capacity += size;
}

} // namespace tessera
