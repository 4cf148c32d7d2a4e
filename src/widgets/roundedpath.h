#pragma once

#include "widgets/windowgeometry.h"

#include <QPainterPath>

#include <array>

namespace tessera {

/// A corner that is rounded on the way towards a place.
struct RoundedCorner {
    Place corner;
    Place towards;

    bool operator==(const RoundedCorner&) const = default;
};

/// The outline of a panel, from the middle of its lower edge and back to it. Every number is a whole one.
struct RoundedPath {
    static constexpr double radius = 19;

    Place start;
    std::array<RoundedCorner, 4> corners;

    bool operator==(const RoundedPath&) const = default;
};

RoundedPath roundedPath(const Frame& bounds, float borderWidth);

/// The same for a painter whose y grows upwards too.
QPainterPath painterPath(const RoundedPath& path);

/// A button at the upper edge of a panel, and what its image is called.
struct PanelButton {
    double x;
    const char* image;
};

inline constexpr PanelButton closePanelButton{8, "bu_close2"};
inline constexpr PanelButton minimisePanelButton{28, "bu_minus2"};

Frame panelButtonFrame(const PanelButton& button, double viewHeight);

} // namespace tessera
