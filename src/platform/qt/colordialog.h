#pragma once

#include "platform/desktop.h"

#include <QColor>
#include <QDialog>

#include <array>

class QGridLayout;
class QLabel;
class QLineEdit;
class QSlider;

namespace tessera {

/// A modal panel for a colour and how opaque it is, by sliders or by its code. The toolkit's own one takes no
/// code with an opacity: of "#8000ff00" it keeps "#8000ff", another colour; half a code changes the colour
/// while it is typed, and what it shows is never seen through.
class ColorDialog : public QDialog
{
    Q_OBJECT

public:
    ColorDialog(const ColorRequest& request, QWidget* parent);

    /// "#AARRGGBB", or nothing where it was cancelled.
    std::optional<QString> run();

    enum Part { Hue, Saturation, Brightness, Opacity };
    static constexpr std::size_t partCount = 4;

private:
    struct Row {
        QSlider* slider;
        QLabel* value;
    };

    QLayout* makeButtons();
    void addRow(QGridLayout& grid, Part part);
    void sliderMoved(Part part);
    void codeEdited(const QString& code);
    /// Shows the colour in everything but the control that it came from.
    void showColor(const QWidget* origin);

    QColor m_color;
    QWidget* m_preview;
    QLineEdit* m_code;
    std::array<Row, partCount> m_rows{};
};

} // namespace tessera
