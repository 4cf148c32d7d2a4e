#pragma once

#include "widgets/windowgeometry.h"

#include <QWidget>

class QLabel;

namespace tessera {

class ImageCandoDrag;

/// The strip beneath a picture that is shown at its own size, in pixels.
inline constexpr int imageStrip = 20;

/// The frame of a window that shows a picture pixel by pixel: its origin stays.
Frame imageFrame(const Frame& current, QSize picture);

/// One picture at its own size, over a strip that tells how large it is.
class ImageWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ImageWindow(QWidget* parent = nullptr);

    ImageCandoDrag* imageView2;

    /// Takes the picture's size, as far as the screen allows, and comes to the front if it was hidden.
    void show(const QImage& image, const QString& name);

private:
    void fit(QSize picture);

    QLabel* m_size;
};

} // namespace tessera
