#pragma once

#include <QRectF>
#include <QSizeF>

#include <array>
#include <optional>

namespace tessera {

/// A picture's longer side to its shorter one.
struct AspectRatio {
    double longSide;
    double shortSide;
};

/// By the position in the pop-up, which the settings hold. Three positions are deliberately square; nothing
/// stands for the picture's own proportions.
// clang-format off
inline constexpr std::array<std::optional<AspectRatio>, 9> aspectRatios{{
    std::nullopt,
    {{1, 1}},
    {{1, 1}},
    {{4, 3}},
    {{16, 9}},
    {{1, 1}},
    {{6, 4}},
    {{8, 3}},
    {{12, 3}},
}};
// clang-format on

/// The ratio that a picture gets; square for a position behind the table.
AspectRatio aspectRatio(int position, QSizeF picture);

/// How a picture is drawn: every point of it is scaled, then moved.
struct PicturePlace {
    double x;
    double y;
    float scaleX; ///< single precision, as it is applied
    float scaleY;

    QRectF rectangle(QSizeF picture) const;
};

/// In the middle of the view, filling it along one side. Nothing where the picture or the view is empty.
std::optional<PicturePlace> picturePlace(QSizeF picture, const QRectF& view, int position);

/// Each pixel of the picture a whole number of the view's along the side that grows least, where it grows at
/// all: smaller than the view, but evenly sharp.
PicturePlace inWholeSteps(const PicturePlace& place, QSizeF picture);

} // namespace tessera
