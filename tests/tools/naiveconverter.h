#pragma once

#include "core/encodings.h"
#include "tools/listxmlconverter.h"

#include <string>
#include <vector>

namespace tessera::test {

/// The rules of the conversion, one after another, over a whole text in memory: what the scanner must equal.
class NaiveConverter
{
public:
    ConversionOptions options;
    std::vector<std::string> titles; ///< the flat list
    std::string uuid;
    bool isStream = false; ///< the first start tag decides

    std::size_t games = 0;
    bool isCutOff = false;

    std::string convert(const std::string& bytes)
    {
        m_text = readable(bytes);
        games = 0;
        isCutOff = false;
        const std::string name = elementName();
        const std::string start = "<" + name + " ";
        const std::string end = "</" + name + ">";
        m_out.clear();
        std::size_t position = 0;
        for (;;) {
            const std::size_t tag = m_text.find(start, position);
            if (tag == std::string::npos)
                break;
            m_start = tag + start.size();
            m_end = m_text.find(end, m_start);
            if (m_end == std::string::npos) {
                isCutOff = true;
                break;
            }
            element();
            position = m_end + end.size();
        }
        return header() + m_out + "</database>";
    }

    static std::string readable(const std::string& bytes)
    {
        std::string decoded;
        appendUtf8(decoded, bytes);
        std::string text;
        for (std::size_t i = 0; i < decoded.size(); ++i) {
            const auto c = static_cast<unsigned char>(decoded[i]);
            const std::string three = decoded.substr(i, 3);
            if (three == "\xEF\xBF\xBE" || three == "\xEF\xBF\xBF") {
                text += "\xEF\xBF\xBD";
                i += 2;
            } else if (c < 0x20 && c != '\t' && c != '\n' && c != '\r') {
                text += "\xEF\xBF\xBD";
            } else {
                text += decoded[i];
            }
        }
        return text;
    }

private:
    std::string elementName() const
    {
        const std::size_t game = m_text.find("<game ");
        const std::size_t machine = m_text.find("<machine ");
        if (isStream && machine < game)
            return "machine";
        return game == std::string::npos ? "machine" : "game";
    }

    std::string header() const
    {
        return "<?xml version=\"1.0\"?>\n<!DOCTYPE database SYSTEM "
               "\"file:///System/Library/DTDs/CoreData.dtd\">\n\n"
               "<database>\n<databaseInfo>\n<version>134481920</version>\n<UUID>"
            + uuid + "</UUID>\n<nextObjectID>" + std::to_string(101 + games)
            + "</nextObjectID>\n<metadata></metadata>\n</databaseInfo>\n";
    }

    bool inRange(const std::string& needle, bool anyCase = false) const
    {
        std::string range = m_text.substr(m_start, m_end - m_start);
        if (anyCase) {
            for (char& c : range)
                c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
        }
        return range.find(needle) != std::string::npos;
    }

    // The value after a needle, or false; the next search begins where it begins.
    bool value(const std::string& needle, const std::string& end, std::string& value)
    {
        const std::string_view range = std::string_view(m_text).substr(0, m_end);
        const std::size_t found = range.find(needle, m_position);
        if (found == std::string_view::npos)
            return false;
        m_position = found + needle.size();
        const std::size_t stop = range.find(end, m_position);
        value = range.substr(m_position, stop == std::string_view::npos ? stop : stop - m_position);
        return true;
    }

    void attribute(const std::string& name, const std::string& value)
    {
        m_out += "<attribute name=\"" + name + "\" type=\"string\">" + value + "</attribute>\n";
    }

    std::string japanese(const std::string& name, const std::string& title) const
    {
        for (std::size_t i = 0; i < titles.size(); ++i) {
            if (titles[i] != name)
                continue;
            return i + 1 < titles.size() ? escaped(titles[i + 1]) : title;
        }
        return title;
    }

    static std::string escaped(const std::string& text)
    {
        std::string out;
        for (const char c : readable(text)) {
            switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\'':
                out += "&apos;";
                break;
            default:
                out += c;
            }
        }
        return out;
    }

    void element()
    {
        std::string kind = "game";
        if (inRange("isbios=\"yes\"")) {
            if (options.withoutBios)
                return;
            kind = "bios";
        }
        if (inRange("ismechanical=\"yes\"", true)) {
            if (options.withoutMechanical)
                return;
            kind = "mechanical";
        }
        if (inRange("isdevice=\"yes\"")) {
            if (options.withoutDevices)
                return;
            kind = "device";
        }
        m_position = m_start;
        m_out += "<object type=\"MAME\" id=\"z" + std::to_string(102 + games) + "\">\n";
        attribute("type", kind);
        std::string name = "????";
        const bool named = value("name=\"", "\" ", name);
        attribute("name", name);
        std::string cloneof = named ? name : m_text.substr(m_start);
        value("cloneof=\"", "\" ", cloneof);
        attribute("cloneof", cloneof);
        std::string title = "????";
        value("<description>", "</description>", title);
        attribute("title", title);
        attribute("titlejp", japanese(name, title));
        std::string year = "????";
        value("<year>", "</year>", year);
        attribute("year", year);
        std::string maker = "????";
        value("<manufacturer>", "</manufacturer>", maker);
        attribute("maker", maker);
        std::string status = "????";
        value("<driver status=\"", "\" ", status);
        attribute("status", status);
        std::string device;
        value("<device type=\"", "\" ", device);
        attribute("device", device);
        m_out += "</object>\n";
        ++games;
    }

    std::string m_text;
    std::string m_out;
    std::size_t m_start = 0;
    std::size_t m_end = 0;
    std::size_t m_position = 0;
};

/// The identifier in a store's header.
inline std::string uuidOf(const std::string& store)
{
    const std::size_t start = store.find("<UUID>") + 6;
    return store.substr(start, store.find("</UUID>") - start);
}

} // namespace tessera::test
