#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace tessera::test {

/// What a page or a window says, a line for each control that says something, in the order in which they were
/// made: "NAME: TEXT / for BUDDY / named ACCESSIBLE NAME / tip TOOL TIP / hint PLACEHOLDER". Without
/// installed texts these are their keys.
inline QStringList wordsOf(const QWidget& page)
{
    QStringList lines;
    QList<const QWidget*> controls{&page};
    for (const QWidget* each : page.findChildren<QWidget*>())
        controls << each;
    for (const QWidget* each : std::as_const(controls)) {
        QStringList said;
        const auto say = [&said](const QString& kind, const QString& text) {
            if (!text.isEmpty())
                said << kind + text;
        };
        if (each->isWindow())
            say(QStringLiteral("window "), each->windowTitle());
        if (const auto* label = qobject_cast<const QLabel*>(each)) {
            say(QString(), label->text());
            if (label->buddy() != nullptr)
                say(QStringLiteral("for "), label->buddy()->objectName());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(each)) {
            say(QString(), button->text());
        } else if (const auto* box = qobject_cast<const QGroupBox*>(each)) {
            say(QString(), box->title());
        } else if (const auto* popUp = qobject_cast<const QComboBox*>(each)) {
            for (int item = 0; item < popUp->count(); ++item)
                say(QString(), popUp->itemText(item));
        } else if (const auto* field = qobject_cast<const QLineEdit*>(each)) {
            say(QStringLiteral("hint "), field->placeholderText());
        }
        say(QStringLiteral("named "), each->accessibleName());
        say(QStringLiteral("tip "), each->toolTip());
        if (!said.isEmpty())
            lines << each->objectName() + QStringLiteral(": ") + said.join(QStringLiteral(" / "));
    }
    return lines;
}

} // namespace tessera::test
