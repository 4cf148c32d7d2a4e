#pragma once

#include <QPainterPath>
#include <QWidget>

class QToolButton;

namespace tessera {

/// The translucent rounded background of a small window, with a close and a minimise button of its own.
class Rounded_View2 : public QWidget
{
    Q_OBJECT

public:
    static constexpr double radius = 19; ///< of its corners

    explicit Rounded_View2(QWidget* parent = nullptr);

    QToolButton* closeButton;
    QToolButton* minimiseButton;

    float borderWidth() const { return m_borderWidth; }
    QColor borderColor() const { return m_borderColor; }
    QColor backgroundColor() const { return m_backgroundColor; }
    /// Without a width there is no outline.
    void setBorderWidth(float width);
    void setBorderColor(const QColor& color);
    void setBackgroundColor(const QColor& color);
    void setDefaults();
    /// Its edges lie on whole numbers, within the view by two thirds of the border.
    QPainterPath outline() const;

Q_SIGNALS:
    // The buttons' actions, for the window.
    void orderOut();
    void miniaturize();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QToolButton* makeButton(const char* image, int x, const QString& name, const QKeySequence& keys);

    float m_borderWidth = 0;
    QColor m_borderColor;
    QColor m_backgroundColor;
};

} // namespace tessera
