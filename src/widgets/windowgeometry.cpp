#include "widgets/windowgeometry.h"

namespace tessera {

namespace {

constexpr double gripSize = 16;
constexpr double gripFromRight = 18;
constexpr double gripFromBottom = 2;

} // namespace

bool holds(const Frame& frame, Place place)
{
    return place.x() >= frame.x() && place.x() < frame.x() + frame.width() && place.y() >= frame.y()
        && place.y() < frame.y() + frame.height();
}

Place inWindow(const Frame& window, Place onScreen)
{
    return onScreen - window.topLeft();
}

Frame resizeGrip(const Frame& window)
{
    return {window.width() - gripFromRight, gripFromBottom, gripSize, gripSize};
}

Frame movedFrame(const Frame& window, Place initialLocation, Place mouse, const Screen& screen)
{
    Frame moved(mouse - initialLocation, window.size());
    const double highest = screen.frame.y() + screen.frame.height() - screen.menuBarHeight;
    if (moved.y() + moved.height() > highest)
        moved.moveTop(highest - moved.height());
    return moved;
}

Frame resizedFrame(const Frame& start, Place startLocation, Place mouse, const SizeLimits& limits)
{
    // Deliberate: in single precision.
    const auto dx = static_cast<float>(mouse.x() - startLocation.x());
    const auto dy = static_cast<float>(startLocation.y() - mouse.y());
    Frame frame(start.x(), start.y() - dy, start.width() + dx, start.height() + dy);

    if (limits.minWidth > 0 && limits.minWidth > frame.width())
        frame.setWidth(limits.minWidth);
    if (limits.maxWidth > 0 && limits.maxWidth < frame.width())
        frame.setWidth(limits.maxWidth);
    if (limits.minHeight > 0 && limits.minHeight > frame.height()) {
        frame.translate(0, frame.height() - limits.minHeight);
        frame.setHeight(limits.minHeight);
    }
    if (limits.maxHeight > 0 && limits.maxHeight < frame.height()) {
        // Deliberate: by the minimum height, so that the window steps away from its upper edge.
        frame.translate(0, frame.height() - limits.minHeight);
        frame.setHeight(limits.maxHeight);
    }
    return frame;
}

Place turnedOver(Place place, double height)
{
    return {place.x(), height - place.y()};
}

Frame turnedOver(const Frame& frame, double height)
{
    return {frame.x(), height - frame.y() - frame.height(), frame.width(), frame.height()};
}

} // namespace tessera
