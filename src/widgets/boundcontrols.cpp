#include "widgets/boundcontrols.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace tessera {

namespace {

// Calls `show` now, and again whenever the setting changes, for as long as the control lives.
template <class Show>
void follow(QObject& control, DefaultsController& defaults, QLatin1StringView name, Show show)
{
    show();
    QObject::connect(&defaults, &DefaultsController::changed, &control, [name, show](const QString& changed) {
        if (changed.isEmpty() || changed == name)
            show();
    });
}

// A field that is being typed in already shows what was just stored; setting it again would move the cursor.
void showText(QLineEdit& field, const QString& text)
{
    if (field.text() != text && !(field.hasFocus() && field.isModified()))
        field.setText(text);
}

template <class AnyKey>
void bindText(QLineEdit& field, DefaultsController& defaults, const AnyKey& key)
{
    follow(field, defaults, key.name, [&field, &defaults, &key] { showText(field, defaults.text(key)); });
    QObject::connect(&field, &QLineEdit::textEdited, &defaults,
                     [&defaults, &key](const QString& text) { defaults.setText(key, text); });
    QObject::connect(&field, &QLineEdit::editingFinished, &field, [&field] { field.setModified(false); });
}

} // namespace

void bind(QCheckBox& box, DefaultsController& defaults, const Key<bool>& key)
{
    follow(box, defaults, key.name, [&box, &defaults, &key] { box.setChecked(defaults.flag(key)); });
    QObject::connect(&box, &QCheckBox::toggled, &defaults, [&defaults, &key](bool on) {
        if (on != defaults.flag(key))
            defaults.setFlag(key, on);
    });
}

void bind(QCheckBox& box, DefaultsController& defaults, const ChosenKey& key)
{
    follow(box, defaults, key.name,
           [&box, &defaults, &key] { box.setChecked(defaults.stored().flag(key.name)); });
    QObject::connect(&box, &QCheckBox::clicked, &defaults, [&defaults, &key](bool on) {
        defaults.setText(key, on ? QStringLiteral("true") : QStringLiteral("false"));
    });
}

void bind(QComboBox& popup, DefaultsController& defaults, const Key<float>& key)
{
    follow(popup, defaults, key.name, [&popup, &defaults, &key] {
        const int index = defaults.index(key);
        popup.setCurrentIndex(index < popup.count() ? index : -1);
    });
    QObject::connect(&popup, &QComboBox::activated, &defaults,
                     [&defaults, &key](int index) { defaults.setIndex(key, index); });
}

void bind(QButtonGroup& buttons, DefaultsController& defaults, const Key<float>& key)
{
    follow(buttons, defaults, key.name, [&buttons, &defaults, &key] {
        if (QAbstractButton* button = buttons.button(defaults.index(key))) {
            button->setChecked(true);
        } else if (QAbstractButton* checked = buttons.checkedButton()) {
            buttons.setExclusive(false);
            checked->setChecked(false);
            buttons.setExclusive(true);
        }
    });
    QObject::connect(&buttons, &QButtonGroup::idClicked, &defaults,
                     [&defaults, &key](int id) { defaults.setIndex(key, id); });
}

void bind(QLineEdit& field, DefaultsController& defaults, const Key<float>& key)
{
    bindText(field, defaults, key);
}

void bind(QLineEdit& field, DefaultsController& defaults, const Key<QLatin1StringView>& key)
{
    bindText(field, defaults, key);
}

void bind(QLineEdit& field, DefaultsController& defaults, const ChosenKey& key)
{
    bindText(field, defaults, key);
}

} // namespace tessera
