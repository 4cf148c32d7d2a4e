#include "widgets/roundedpath.h"

#include <cmath>

namespace tessera {

namespace {

constexpr double buttonSize = 14;
constexpr double buttonFromTop = 26;

// The smallest rectangle of whole numbers around it; nothing where there is nothing left.
Frame integral(const Frame& frame)
{
    if (frame.width <= 0 || frame.height <= 0)
        return {};
    const double x = std::floor(frame.x);
    const double y = std::floor(frame.y);
    return {x, y, std::ceil(frame.x + frame.width) - x, std::ceil(frame.y + frame.height) - y};
}

Place truncated(double x, double y)
{
    return {std::trunc(x), std::trunc(y)};
}

QPointF point(Place place)
{
    return {place.x, place.y};
}

} // namespace

RoundedPath roundedPath(const Frame& bounds, float borderWidth)
{
    const double inset = static_cast<double>(borderWidth) / 1.5;
    const Frame inner
        = integral({bounds.x + inset, bounds.y + inset, bounds.width - 2 * inset, bounds.height - 2 * inset});
    const double x = inner.x + 0.5;
    const double y = inner.y + 0.5;
    const double w = inner.width;
    const double h = inner.height;
    const Place bottom = truncated(x + w / 2, y);
    const Place right = truncated(x + w, y + h / 2);
    const Place top = truncated(x + w / 2, y + h);
    const Place left = truncated(x, y + h / 2);
    return {bottom,
            {RoundedCorner{truncated(x + w, y), right}, RoundedCorner{truncated(x + w, y + h), top},
             RoundedCorner{truncated(x, y + h), left}, RoundedCorner{truncated(x, y), bottom}}};
}

QPainterPath painterPath(const RoundedPath& path)
{
    const auto& [lowerRight, upperRight, upperLeft, lowerLeft] = path.corners;
    QPainterPath outline;
    outline.addRoundedRect(QRectF(point(lowerLeft.corner), point(upperRight.corner)), RoundedPath::radius,
                           RoundedPath::radius);
    return outline;
}

Frame panelButtonFrame(const PanelButton& button, double viewHeight)
{
    return {button.x, viewHeight - buttonFromTop, buttonSize, buttonSize};
}

} // namespace tessera
