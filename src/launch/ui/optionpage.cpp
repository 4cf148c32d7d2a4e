#include "launch/ui/optionpage.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tessera {

namespace {
constexpr int popupWidth = 190;
}

OptionPage::OptionPage(const QString& identifier, QWidget* parent)
    : FormPage(parent)
    , m_identifier(identifier)
{
}

void OptionPage::showEvent(QShowEvent* event)
{
    if (m_chooser && !std::exchange(m_isComplete, true))
        complete(*m_chooser);
    FormPage::showEvent(event);
}

void OptionPage::complete(PathChooser&) { }

QPushButton* OptionPage::addChooseButton(QLineEdit* field)
{
    auto* button = new QPushButton(qtTrId("path_choose"));
    button->setObjectName(field->objectName() + QStringLiteral("_choose"));
    button->setAccessibleName(button->text() + QStringLiteral(": ") + field->accessibleName());
    auto* row = qobject_cast<QBoxLayout*>(field->parentWidget()->layout());
    row->insertWidget(row->indexOf(field) + 1, button);
    setTabOrder(field, button);
    return button;
}

QComboBox* OptionPage::makePopup(const char* name, std::span<const PopupItem> items)
{
    auto* popup = new QComboBox(this);
    popup->setObjectName(QString::fromLatin1(name));
    popup->setMinimumWidth(popupWidth);
    popup->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    for (const PopupItem& item : items) {
        if (item.title)
            popup->addItem(QString::fromLatin1(item.title));
        else if (item.labelKey)
            popup->addItem(qtTrId(item.labelKey));
        else
            popup->insertSeparator(popup->count());
    }
    return popup;
}

QCheckBox* OptionPage::makeBox(const char* name, const char* labelKey)
{
    auto* box = new QCheckBox(qtTrId(labelKey), this);
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

QLineEdit* OptionPage::makeField(const char* name, const char* accessibleKey)
{
    auto* field = new QLineEdit(this);
    field->setObjectName(QString::fromLatin1(name));
    field->setMaximumWidth(popupWidth);
    if (accessibleKey)
        field->setAccessibleName(qtTrId(accessibleKey));
    return field;
}

QButtonGroup* OptionPage::makeMatrix(const char* name, std::span<const char* const> labelKeys)
{
    auto* matrix = new QButtonGroup(this);
    matrix->setObjectName(QString::fromLatin1(name));
    int row = 0;
    for (const char* key : labelKeys) {
        auto* button = new QRadioButton(qtTrId(key), this);
        button->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(row));
        matrix->addButton(button, row++);
    }
    return matrix;
}

} // namespace tessera
