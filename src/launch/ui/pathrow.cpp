#include "launch/ui/pathrow.h"

#include "launch/ui/pathchooser.h"
#include "widgets/boundcontrols.h"
#include "widgets/formpage.h"
#include "widgets/pathfield.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>

namespace tessera {

PathField* addPathRow(FormPage& page, const PathRow& row, DefaultsController& defaults, PathChooser& chooser)
{
    auto* path = new PathField(qtTrId(row.label), qtTrId("path_choose"), qtTrId("path_reveal"));
    path->field()->setObjectName(QLatin1StringView(row.field));
    path->chooseButton()->setObjectName(QLatin1StringView(row.button));
    page.addRow(qtTrId(row.label), path);
    bind(*path->field(), defaults, row.key);
    chooser.putInto(*path->field(), row.key.name);
    QObject::connect(path->chooseButton(), &QPushButton::clicked, &chooser, row.select);
    return path;
}

} // namespace tessera
