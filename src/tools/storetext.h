#pragma once

#include "catalogue/gamerecord.h"
#include "core/failure.h"

#include <array>
#include <cstdint>
#include <expected>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tessera {

/// Takes the next piece of a text; false where no more is wanted.
using ContentSink = std::function<bool(std::string_view)>;

/// A store's text. Only the values are held: four fifths of the text is markup, which is made while it is
/// written.
class StoreText
{
public:
    /// One object; the values are escaped already, and together less than 4 GiB. With `cloneofLater` that one
    /// is known only at the end.
    void appendObject(const std::array<std::string_view, fieldCount>& values, bool cloneofLater = false);

    /// The cloneofs that were left for later are the parts of `later` from these places to its end, one after
    /// another.
    void complete(std::string uuid, std::string later = {}, std::vector<std::size_t> laterStarts = {});

    /// The objects of another text, none of whose cloneofs was left for later.
    void append(StoreText next);

    std::size_t objects() const { return m_objects; }
    /// Bytes of the whole text.
    std::size_t size() const;
    /// Hands the text over piece by piece, until the sink wants no more.
    void write(const ContentSink& sink) const;
    std::expected<void, Failure> save(const QString& path) const;
    std::string joined() const;

private:
    /// Before an object's values, which follow one another.
    struct Lengths {
        std::array<std::uint32_t, fieldCount> bytes;
    };
    struct Block {
        std::unique_ptr<char[]> bytes;
        std::size_t used = 0;
        std::size_t capacity = 0;
    };

    char* reserve(std::size_t bytes);
    std::string header() const;
    std::string_view later(std::size_t index) const;

    std::vector<Block> m_blocks;
    std::size_t m_objects = 0;
    std::size_t m_valueBytes = 0;
    std::string m_uuid;
    std::string m_later;
    std::vector<std::size_t> m_laterStarts;
};

} // namespace tessera
