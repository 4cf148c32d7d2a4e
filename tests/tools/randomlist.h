#pragma once

#include <array>
#include <random>
#include <string>

namespace tessera::test {

/// Texts made of pieces of lists, whole and broken, in any order.
class RandomList
{
public:
    explicit RandomList(unsigned seed)
        : m_random(seed)
    {
    }

    std::size_t below(std::size_t limit) { return m_random() % limit; }

    std::string text(std::size_t pieces)
    {
        std::string text;
        const bool old = below(4) == 0;
        for (std::size_t i = 0; i < pieces; ++i)
            text += piece(old);
        if (below(6) == 0 && !text.empty())
            text[below(text.size())] = static_cast<char>(1 + below(255));
        return text;
    }

private:
    std::string piece(bool old)
    {
        switch (below(24)) {
        case 0:
        case 1:
            return old ? "<game " : "<machine ";
        case 2:
        case 3:
            return old ? "</game>\n" : "</machine>\n";
        case 4:
            return std::string(below(300), ' ');
        case 5:
            return below(20) == 0 ? "<game " : "<gam";
        case 6:
            return below(20) == 0 ? "</game>" : "</gam";
        default:
            return fragments[below(fragments.size())];
        }
    }

    // clang-format off
    static constexpr std::array<const char*, 49> fragments{
        "name=\"", "pong", "puck\"", "\" ", "\">", "\"/>", "cloneof=\"", "cloneOf=\"", "romof=\"", "cloneof=",
        "isbios=\"yes\"", "isbios=\"no\"", "ISBIOS=\"yes\"", "isdevice=\"yes\"", "isDevice=\"yes\"", "isdevice=\"Yes\"",
        "ismechanical=\"yes\"", "ISMECHANICAL=\"YES\"", "IsMechanical=\"yEs\"", "ismechanical=\"no\"", "ismech",
        "<description>", "</description>", "Puck & Co", "<year>", "</year>", "1980", "<manufacturer>", "</manufacturer>",
        "Na\xC3\xAFve", "\xFF\xE3\x81", "\x01\x1F\x7F", "\xEF\xBF\xBE", "<driver status=\"", "<driver  status=\"", "good",
        "<device type=\"", "<device_ref name=\"", "floppy", "\n", "\t", " ", "\"", "<", "<!-- ", "=\"yes\" ", "<machin",
        "</machine", "????"};
    // clang-format on

    std::mt19937 m_random;
};

} // namespace tessera::test
