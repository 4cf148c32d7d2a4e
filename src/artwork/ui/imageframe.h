#pragma once

#include "widgets/windowgeometry.h"

#include <QSize>

namespace tessera {

/// The strip beneath a picture that is shown at its own size, in pixels.
inline constexpr int imageStrip = 20;

/// The frame of a window that shows a picture pixel by pixel: its origin stays.
inline Frame imageFrame(const Frame& current, QSize picture)
{
    return {current.x, current.y, static_cast<double>(picture.width()),
            static_cast<double>(picture.height() + imageStrip)};
}

} // namespace tessera
