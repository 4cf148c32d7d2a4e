#include "platform/qt/colordialog.h"

#include "core/message.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSlider>

namespace tessera {

namespace {

struct PartRow {
    const char* label;
    int largest;
    const char* unit;
};

// In the order of ColorDialog::Part.
constexpr std::array partRows{
    PartRow{textKey("color_hue"), 359, "°"},
    PartRow{textKey("color_saturation"), 100, " %"},
    PartRow{textKey("color_brightness"), 100, " %"},
    PartRow{textKey("color_opacity"), 100, " %"},
};

constexpr int sliderWidth = 220;
constexpr int valueWidth = 48;
constexpr int codeWidth = 120;
constexpr QSize previewSize(112, 112);
constexpr int square = 8;
constexpr qreal radius = 6;

int percent(float share)
{
    return qRound(share * 100);
}

// The colour over squares that let its transparency be seen.
class Preview : public QWidget
{
public:
    Preview(const QColor& color, QWidget* parent)
        : QWidget(parent)
        , m_color(color)
    {
        setFixedSize(previewSize);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath shape;
        shape.addRoundedRect(rect(), radius, radius);
        painter.setClipPath(shape);
        painter.fillRect(rect(), palette().color(QPalette::Base));
        for (int y = 0; y < height(); y += square) {
            for (int x = y / square % 2 * square; x < width(); x += 2 * square)
                painter.fillRect(x, y, square, square, palette().color(QPalette::Button));
        }
        painter.fillRect(rect(), m_color);
    }

private:
    const QColor& m_color;
};

} // namespace

ColorDialog::ColorDialog(const ColorRequest& request, QWidget* parent)
    : QDialog(parent)
    , m_color(QColor::fromString(request.color))
    , m_preview(new Preview(m_color, this))
    , m_code(new QLineEdit(this))
{
    setWindowTitle(request.title);
    setAccessibleName(request.title);
    static const QRegularExpression code(QStringLiteral("#[0-9a-fA-F]{8}"));
    m_code->setObjectName(QStringLiteral("codeField"));
    m_code->setAccessibleName(qtTrId("color_code"));
    m_code->setToolTip(qtTrId("color_code_help"));
    m_code->setValidator(new QRegularExpressionValidator(code, m_code));
    m_code->setFixedWidth(codeWidth);
    connect(m_code, &QLineEdit::textEdited, this, &ColorDialog::codeEdited);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    for (const Part part : {Hue, Saturation, Brightness, Opacity})
        addRow(*grid, part);
    auto* codeLabel = new QLabel(qtTrId("color_code"), this);
    codeLabel->setProperty("role", QStringLiteral("dim"));
    codeLabel->setBuddy(m_code);
    grid->addWidget(codeLabel, partCount, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(m_code, partCount, 1, Qt::AlignLeft);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(24, 24, 24, 20);
    layout->setHorizontalSpacing(20);
    layout->setVerticalSpacing(20);
    layout->addWidget(m_preview, 0, 0, Qt::AlignTop);
    layout->addLayout(grid, 0, 1);
    layout->addLayout(makeButtons(), 1, 0, 1, 2);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    showColor(nullptr);
}

void ColorDialog::addRow(QGridLayout& grid, Part part)
{
    const PartRow& texts = partRows[part];
    const QString name = qtTrId(texts.label);
    auto* slider = new QSlider(Qt::Horizontal, this);
    slider->setObjectName(QLatin1String(texts.label));
    slider->setAccessibleName(name);
    slider->setRange(0, texts.largest);
    slider->setFixedWidth(sliderWidth);
    auto* value = new QLabel(this);
    value->setFixedWidth(valueWidth);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_rows[part] = {slider, value};
    connect(slider, &QSlider::valueChanged, this, [this, part] { sliderMoved(part); });

    auto* label = new QLabel(name, this);
    label->setProperty("role", QStringLiteral("dim"));
    label->setBuddy(slider);
    grid.addWidget(label, part, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(slider, part, 1);
    grid.addWidget(value, part, 2);
}

QLayout* ColorDialog::makeButtons()
{
    auto* ok = new QPushButton(qtTrId("color_ok"), this);
    ok->setObjectName(QStringLiteral("okButton"));
    ok->setProperty("role", QStringLiteral("accent"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(qtTrId("color_cancel"), this);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(ok);
    return buttons;
}

std::optional<QString> ColorDialog::run()
{
    if (exec() != Accepted)
        return std::nullopt;
    return m_color.name(QColor::HexArgb);
}

// Opacity leaves the three others exactly as they were given.
void ColorDialog::sliderMoved(Part part)
{
    if (part == Opacity) {
        m_color.setAlphaF(static_cast<float>(m_rows[Opacity].slider->value()) / 100);
    } else {
        const auto share = [this](Part of) { return static_cast<float>(m_rows[of].slider->value()) / 100; };
        m_color = QColor::fromHsvF(static_cast<float>(m_rows[Hue].slider->value()) / 360, share(Saturation),
                                   share(Brightness), m_color.alphaF());
    }
    showColor(m_rows[part].slider);
}

void ColorDialog::codeEdited(const QString& code)
{
    if (!m_code->hasAcceptableInput())
        return;
    m_color = QColor::fromString(code);
    showColor(m_code);
}

void ColorDialog::showColor(const QWidget* origin)
{
    const QColor hsv = m_color.toHsv();
    // A grey has no hue: the slider stays where it was.
    const std::array values{hsv.hue() < 0 ? m_rows[Hue].slider->value() : hsv.hue(),
                            percent(hsv.saturationF()), percent(hsv.valueF()), percent(hsv.alphaF())};
    for (std::size_t i = 0; i < partCount; ++i) {
        QSlider* slider = m_rows[i].slider;
        // Of the sliders only the moved one tells: the others would round the colour to what they can show.
        if (qobject_cast<const QSlider*>(origin) == nullptr) {
            const QSignalBlocker quiet(slider);
            slider->setValue(values[i]);
        }
        m_rows[i].value->setText(QString::number(slider->value()) + QString::fromUtf8(partRows[i].unit));
    }
    if (origin != m_code)
        m_code->setText(m_color.name(QColor::HexArgb));
    m_preview->update();
}

} // namespace tessera
