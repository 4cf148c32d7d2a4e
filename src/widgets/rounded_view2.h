#pragma once

#include <QWidget>

class QToolButton;

namespace tessera {

struct PanelButton;

/// The translucent rounded background of a small window, with a close and a minimise button of its own.
class Rounded_View2 : public QWidget
{
    Q_OBJECT

public:
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

Q_SIGNALS:
    // The buttons' actions, for the window.
    void orderOut();
    void miniaturize();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QToolButton* makeButton(const PanelButton& button, const QString& name, const QKeySequence& keys);

    float m_borderWidth = 0;
    QColor m_borderColor;
    QColor m_backgroundColor;
};

} // namespace tessera
