#pragma once

#include "core/failure.h"

#include <QByteArray>

#include <expected>
#include <memory>
#include <optional>
#include <vector>

namespace tessera {

/// A value of a property list, with everything that stands in it. What we have no use for is carried along.
class PropertyList
{
public:
    enum class Kind { Array, Dictionary, Value };

    static PropertyList array();
    static PropertyList dictionary();

    PropertyList(const PropertyList& other);
    PropertyList(PropertyList&& other) noexcept = default;
    PropertyList& operator=(const PropertyList& other);
    PropertyList& operator=(PropertyList&& other) noexcept = default;
    ~PropertyList() = default;

    Kind kind() const;

    /// Copies of an array's values, in their order.
    std::vector<PropertyList> items() const;
    void append(PropertyList item);

    /// What a dictionary holds under a key, as a text; a number, a date (2026-01-02T03:04:05Z) or a boolean
    /// is written out. Nothing where there is no such key, or no text for its value.
    std::optional<QString> text(const char* key) const;
    /// The same of a string alone: nothing for a number, a date or a boolean.
    std::optional<QString> string(const char* key) const;
    void setText(const char* key, const QString& text);
    /// A copy of what a dictionary holds under a key.
    std::optional<PropertyList> value(const char* key) const;
    void set(const char* key, PropertyList value);
    void remove(const char* key);

    /// As an XML file, version 1.0, which parsePropertyList() reads again. Characters that XML cannot hold
    /// become U+FFFD. `path` is for the failures' texts.
    std::expected<QByteArray, Failure> xml(const QString& path) const;

private:
    friend std::expected<PropertyList, Failure> parsePropertyList(const QByteArray& bytes,
                                                                  const QString& path);
    struct Free {
        void operator()(void* node) const;
    };
    using Node = std::unique_ptr<void, Free>;

    explicit PropertyList(Node node)
        : m_node(std::move(node))
    {
    }

    Node m_node;
};

/// The values of a file in XML or binary form; `path` is for the failures' texts. A file that only a part
/// could be read of is a failure.
std::expected<PropertyList, Failure> parsePropertyList(const QByteArray& bytes, const QString& path);

std::expected<PropertyList, Failure> readPropertyList(const QString& path);

} // namespace tessera
