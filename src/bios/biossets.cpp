#include "bios/biossets.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace tessera {

namespace {

// Bytes. No machine's element is nearly as long: one that does not end must not be kept for ever.
constexpr std::size_t longestMachine = 64'000'000;

} // namespace

void BiosSets::take(std::string_view printed)
{
    std::ranges::copy(printed, m_scanner.room(printed.size()).begin());
    m_scanner.extend(printed.size());
    takeMachines();
    if (m_scanner.isInElement() && m_scanner.held().size() > longestMachine)
        m_scanner = ListxmlScanner(m_scanner.name());
}

void BiosSets::end()
{
    m_scanner.end();
    takeMachines();
}

void BiosSets::takeMachines()
{
    while (const ListxmlElement* machine = m_scanner.next()) {
        if (m_which == Machines::All || machine->isBios)
            takeMachine(machine->text);
    }
}

void BiosSets::takeMachine(std::string_view text)
{
    QXmlStreamReader xml(QStringLiteral("<machine ")
                         + QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
                         + QStringLiteral("</machine>"));
    const auto attribute
        = [&](const char* name) { return xml.attributes().value(QLatin1StringView(name)).toString(); };
    xml.readNextStartElement();
    BiosEntry set{QString(), attribute("name"), QString(), {}};
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1StringView("description")) {
            set.name = xml.readElementText();
            continue;
        }
        if (xml.name() == QLatin1StringView("biosset")) {
            const QString name = attribute("name");
            if (set.bios.isEmpty() || attribute("default") == QLatin1StringView("yes"))
                set.bios = name;
            set.children.push_back({name, set.rom, attribute("description"), {}});
        }
        xml.skipCurrentElement();
    }
    if (!set.rom.isEmpty() && !set.bios.isEmpty())
        m_entries.push_back(std::move(set));
}

} // namespace tessera
