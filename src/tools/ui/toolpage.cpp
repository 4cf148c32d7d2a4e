#include "tools/ui/toolpage.h"

#include "widgets/mnemonic.h"
#include "widgets/pathfield.h"

#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

PathField* ToolPage::addPath(const QString& label, const QString& fieldName, const QString& name)
{
    auto* path = new PathField(withoutMnemonic(label), qtTrId("tool_choose"), qtTrId("tool_reveal"), this);
    path->field()->setObjectName(fieldName);
    path->chooseButton()->setObjectName(QStringLiteral("button_") + name);
    path->revealButton()->setObjectName(QStringLiteral("reveal_") + name);
    addRow(label, path);
    return path;
}

} // namespace tessera
