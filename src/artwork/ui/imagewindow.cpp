#include "artwork/ui/imagewindow.h"

#include "artwork/ui/imagecandodrag.h"
#include "widgets/bringforward.h"
#include "widgets/closekeys.h"
#include "widgets/named.h"

#include <QLabel>
#include <QLocale>
#include <QScreen>
#include <QVBoxLayout>

namespace tessera {

Frame imageFrame(const Frame& current, QSize picture)
{
    return {current.topLeft(), QSizeF(picture + QSize(0, imageStrip))};
}

ImageWindow::ImageWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , imageView2(named("imageView2", new ImageCandoDrag, qtTrId("image_view")))
    , m_size(named("imageSizeLabel", withRole("imagestrip", new QLabel)))
{
    setObjectName(QStringLiteral("imageWindow"));
    m_size->setFixedHeight(imageStrip);
    m_size->setAlignment(Qt::AlignCenter);
    // A picture may be narrower than its size in words.
    m_size->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* layout = edgeToEdge<QVBoxLayout>(this, 0);
    layout->addWidget(imageView2, 1);
    layout->addWidget(m_size);
    closeByKeyboard(*this);
}

void ImageWindow::show(const QImage& image, const QString& name)
{
    const QLocale locale;
    imageView2->setImage(image);
    imageView2->setAccessibleDescription(name);
    m_size->setText(
        qtTrId("image_size").arg(locale.toString(image.width()), locale.toString(image.height())));
    setWindowTitle(name);
    fit(image.size());
    if (!isShown(*this))
        bringForward(*this);
}

// The origin is the lower left corner. What would be out of reach is moved onto the screen, and what is
// larger than the screen drawn smaller.
void ImageWindow::fit(QSize picture)
{
    const QRect free = screen()->availableGeometry();
    const double bottom = free.y() + free.height();
    const Frame current = turnedOver(QRectF(geometry()), bottom);
    const QSize room = free.size() - QSize(0, imageStrip);
    if (picture.width() > room.width() || picture.height() > room.height())
        picture.scale(room, Qt::KeepAspectRatio);
    QRect place = turnedOver(imageFrame(current, picture), bottom).toRect();
    if (!testAttribute(Qt::WA_Moved) && !isVisible()) {
        // It has no place yet; the desktop gives it one.
        resize(place.size());
        return;
    }
    place.moveLeft(qBound(free.left(), place.left(), qMax(free.left(), free.right() + 1 - place.width())));
    place.moveTop(qBound(free.top(), place.top(), qMax(free.top(), free.bottom() + 1 - place.height())));
    setGeometry(place);
}

} // namespace tessera
