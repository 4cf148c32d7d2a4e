#include "launch/ui/unknownoptions.h"

#include "core/message.h"
#include "launch/emulatorprofile.h"
#include "launch/optiontable.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tessera {

namespace {

// Which of them the emulator does not take; none where it takes one.
QStringList unknownOf(const QStringList& options, const EmulatorProfile* profile)
{
    if (profile == nullptr
        || std::ranges::any_of(options, [&](const QString& option) { return profile->takes(option); }))
        return {};
    return options;
}

void setMark(QWidget& widget, bool unknown)
{
    if (widget.property("unknown").toBool() == unknown)
        return;
    widget.setProperty("unknown", unknown);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

// A box carries its name itself: the label may stand for the row's other boxes too.
void mark(QWidget& page, QWidget& control, const QString& why)
{
    setMark(control, !why.isEmpty());
    control.setToolTip(why);
    control.setAccessibleDescription(why);
    if (qobject_cast<QAbstractButton*>(&control) != nullptr)
        return;
    for (QLabel* label : page.findChildren<QLabel*>()) {
        if (label->buddy() != &control)
            continue;
        setMark(*label, !why.isEmpty());
        label->setToolTip(why);
    }
}

} // namespace

void markUnknownOptions(QWidget& page, const OptionRow& row, const EmulatorProfile* profile)
{
    const auto markNamed = [&](const QString& name, const QStringList& options) {
        auto* control = page.findChild<QWidget*>(name);
        const QStringList unknown = unknownOf(options, profile);
        const QString names = unknown.join(QStringLiteral(", "));
        if (control != nullptr)
            mark(page, *control,
                 names.isEmpty() ? names : qtTrId("option_unknown").replace(QStringLiteral("%1"), names));
    };
    const QString name = QLatin1StringView(row.name);
    const QStringList options
        = QString::fromLatin1(row.sdl.options).remove(QLatin1Char('=')).split(QLatin1Char(' '));
    if (row.control.buttons.empty())
        return markNamed(name, options);
    for (int i = 0; i < std::ssize(row.control.buttons); ++i)
        markNamed(QStringLiteral("%1_%2").arg(name).arg(i), {options[i]});
}

} // namespace tessera
