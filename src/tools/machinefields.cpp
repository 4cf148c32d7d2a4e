#include "tools/machinefields.h"

namespace tessera {

namespace {

constexpr std::string_view nameNeedle = "name=\"";
constexpr std::string_view attributeEnd = "\" ";

// Walks through one element, from value to value.
class FieldReader
{
public:
    explicit FieldReader(const ListxmlElement& element)
        : m_element(element)
    {
    }

    std::optional<std::string_view> name()
    {
        return value(m_element.text.find(nameNeedle), nameNeedle.size(), attributeEnd);
    }

    std::optional<std::string_view> next(Needle needle, std::string_view end)
    {
        return value(m_element.find(needle, m_position), needleText(needle).size(), end);
    }

private:
    // A value whose end does not come runs on to the end of the element.
    std::optional<std::string_view> value(std::size_t place, std::size_t length, std::string_view end)
    {
        if (place == std::string_view::npos)
            return std::nullopt;
        m_position = place + length;
        return m_element.text.substr(m_position, m_element.text.find(end, m_position) - m_position);
    }

    const ListxmlElement& m_element;
    std::size_t m_position = 0;
};

std::string_view typeOf(const ListxmlElement& element)
{
    return element.isDevice    ? "device"
        : element.isMechanical ? "mechanical"
        : element.isBios       ? "bios"
                               : "game";
}

} // namespace

MachineFields readFields(const ListxmlElement& element)
{
    FieldReader reader(element);
    MachineFields fields;
    fields.type = typeOf(element);
    fields.name = reader.name();
    fields.cloneof = reader.next(Needle::Cloneof, attributeEnd);
    fields.title = reader.next(Needle::Description, "</description>");
    fields.year = reader.next(Needle::Year, "</year>");
    fields.maker = reader.next(Needle::Manufacturer, "</manufacturer>");
    fields.status = reader.next(Needle::Driver, attributeEnd);
    fields.device = reader.next(Needle::Device, attributeEnd);
    return fields;
}

} // namespace tessera
