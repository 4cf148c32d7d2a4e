#include "artwork/aspectratios.h"

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

bool isPortrait(QSizeF picture)
{
    return picture.height() > picture.width();
}

PicturePlace centred(PicturePlace place, QSizeF picture, QPointF centre)
{
    QRectF drawn = place.rectangle(picture);
    drawn.moveCenter(centre);
    place.x = drawn.x();
    place.y = drawn.y();
    return place;
}

} // namespace

AspectRatio aspectRatio(int position, QSizeF picture)
{
    if (position < 0 || position >= static_cast<int>(aspectRatios.size()))
        return {1, 1};
    const auto& ratio = aspectRatios[static_cast<std::size_t>(position)];
    const auto [shorter, longer] = std::minmax({picture.width(), picture.height()});
    return ratio.value_or(AspectRatio{1, shorter / longer});
}

QRectF PicturePlace::rectangle(QSizeF picture) const
{
    return {x, y, picture.width() * static_cast<double>(scaleX),
            picture.height() * static_cast<double>(scaleY)};
}

std::optional<PicturePlace> picturePlace(QSizeF picture, const QRectF& view, int position)
{
    if (picture.isEmpty() || view.isEmpty())
        return std::nullopt;
    const AspectRatio ratio = aspectRatio(position, picture);
    const QSizeF shape(ratio.longSide, ratio.shortSide);
    const QSizeF target
        = (isPortrait(picture) ? shape.transposed() : shape).scaled(view.size(), Qt::KeepAspectRatio);
    return centred({0, 0, static_cast<float>(target.width() / picture.width()),
                    static_cast<float>(target.height() / picture.height())},
                   picture, view.center());
}

PicturePlace inWholeSteps(const PicturePlace& place, QSizeF picture)
{
    const float least = std::min(place.scaleX, place.scaleY);
    // Rounding may leave a whole number a little too small.
    const float whole = std::floor(least + 0.001F);
    if (whole < 1)
        return place;
    return centred({0, 0, place.scaleX * whole / least, place.scaleY * whole / least}, picture,
                   place.rectangle(picture).center());
}

} // namespace tessera
