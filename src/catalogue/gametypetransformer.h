#pragma once

#include <QString>

#include <array>
#include <string_view>

namespace tessera {

/// A label for the kinds of machine that are no plain game.
class GameTypeTransformer
{
public:
    static QString transformedValue(std::string_view type)
    {
        for (const auto& [kind, label] : labels) {
            if (kind == type)
                return label;
        }
        return {};
    }

private:
    struct Label {
        std::string_view kind;
        QLatin1StringView text;
    };
    static constexpr std::array labels{
        Label{"bios", QLatin1StringView("type : BIOS")},
        Label{"mechanical", QLatin1StringView("type : Mechanical")},
        Label{"device", QLatin1StringView("type : Device")},
    };
};

} // namespace tessera
