#pragma once

#include <QAbstractButton>
#include <QColor>

namespace tessera {

/// A button that shows a colour, over squares that let its transparency be seen.
class ColorWell : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColorWell(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};

} // namespace tessera
