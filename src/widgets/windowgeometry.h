#pragma once

#include <QRectF>

/// Places and frames of windows as plain numbers: the origin is at the bottom left and y grows upwards. A
/// window turns them over at its own edge.
namespace tessera {

using Place = QPointF;
using Frame = QRectF;

/// Of a window; what is not positive is no limit.
struct SizeLimits {
    double minWidth = 0;
    double minHeight = 0;
    double maxWidth = 0;
    double maxHeight = 0;
};

struct Screen {
    Frame frame;
    double menuBarHeight = 0; ///< what the desktop keeps at the upper edge
};

/// Within its left and lower edge, short of the right and upper one.
bool holds(const Frame& frame, Place place);

/// A place on the screen, as seen from the window's origin; and where in the window that is resized by hand.
Place inWindow(const Frame& window, Place onScreen);
Frame resizeGrip(const Frame& window);

/// Where a window goes that was taken at `initialLocation` and is held there: never beneath the menu bar,
/// else anywhere.
Frame movedFrame(const Frame& window, Place initialLocation, Place mouse, const Screen& screen);

/// The frame after the lower right corner was dragged from `startLocation` to `mouse`: the upper edge stays.
Frame resizedFrame(const Frame& start, Place startLocation, Place mouse, const SizeLimits& limits);

/// Between y that grows downwards and upwards, in either direction; `height` is that of all.
Place turnedOver(Place place, double height);
Frame turnedOver(const Frame& frame, double height);

} // namespace tessera
