#pragma once

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace tessera::test {

/// The names of what stands in a row, from left to right.
inline QStringList namesIn(const QWidget* control)
{
    if (!control->objectName().isEmpty())
        return {control->objectName()};
    QStringList names;
    if (const QLayout* layout = control->layout()) {
        for (int i = 0; i < layout->count(); ++i) {
            if (const QWidget* each = layout->itemAt(i)->widget())
                names << namesIn(each);
        }
    }
    return names;
}

/// A page of a form from top to bottom: "LABEL: CONTROL CONTROL", and "---" for a line.
inline QStringList rowsOf(const QWidget& page)
{
    const auto* grid = qobject_cast<const QGridLayout*>(page.layout());
    QStringList rows;
    for (int row = 0; row < grid->rowCount(); ++row) {
        QStringList said;
        for (const int column : {0, 2}) {
            const QLayoutItem* item = grid->itemAtPosition(row, column);
            const QWidget* widget = item ? item->widget() : nullptr;
            if (widget == nullptr || (column == 2 && item == grid->itemAtPosition(row, 0)))
                continue;
            const auto* label = qobject_cast<const QLabel*>(widget);
            const auto* frame = qobject_cast<const QFrame*>(widget);
            if (label != nullptr)
                said << label->text() + u':';
            else if (frame != nullptr && frame->frameShape() == QFrame::HLine)
                said << QStringLiteral("---");
            else
                said << namesIn(widget);
        }
        if (!said.isEmpty())
            rows << said.join(u' ');
    }
    return rows;
}

} // namespace tessera::test
