#include "platform/qt/alertdialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace tessera {

namespace {

constexpr int pictureSize = 40;
constexpr int textWidth = 380;

QLabel* makeText(const QString& text, const QString& role)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    label->setProperty("role", role);
    return label;
}

} // namespace

AlertDialog::AlertDialog(const Alert& alert, QWidget* parent)
    : QDialog(parent)
    , m_pressed(alert.escape.value_or(static_cast<int>(alert.buttons.size()) - 1))
{
    setWindowTitle(QStringLiteral("Tessera"));
    setAccessibleName(alert.message);
    const bool warns = alert.style == Alert::Style::Warning;
    auto* picture = new QLabel;
    picture->setPixmap(
        QIcon(warns ? QStringLiteral(":/icons/warning.svg") : QStringLiteral(":/icons/tessera.svg"))
            .pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(24, 24, 24, 20);
    layout->setHorizontalSpacing(20);
    layout->setVerticalSpacing(8);
    layout->setColumnStretch(1, 1);
    layout->addWidget(picture, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(makeText(alert.message, QStringLiteral("message")), 0, 1);
    if (!alert.informative.isEmpty())
        layout->addWidget(makeText(alert.informative, QStringLiteral("dim")), 1, 1);

    auto* buttons = new QHBoxLayout;
    QPushButton* acting = nullptr;
    buttons->setSpacing(8);
    buttons->setContentsMargins(0, 12, 0, 0);
    buttons->addStretch();
    for (int i = static_cast<int>(alert.buttons.size()) - 1; i >= 0; --i) {
        auto* button = new QPushButton(alert.buttons[i]);
        button->setAutoDefault(true);
        button->setDefault(i == 0);
        button->setProperty("role", i == 0 ? QStringLiteral("accent") : QString());
        connect(button, &QPushButton::clicked, this, [this, i] {
            m_pressed = i;
            accept();
        });
        buttons->addWidget(button);
        acting = button;
    }
    layout->addLayout(buttons, 2, 0, 1, 2);
    if (acting != nullptr)
        acting->setFocus();
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

int AlertDialog::run()
{
    exec();
    return m_pressed;
}

} // namespace tessera
