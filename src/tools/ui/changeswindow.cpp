#include "tools/ui/changeswindow.h"

#include "tools/cataloguecomparison.h"
#include "widgets/bringforward.h"
#include "widgets/closekeys.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace tessera {

namespace {
constexpr QSize usualSize(620, 520);
constexpr int margin = 18;
} // namespace

ChangesWindow::ChangesWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , summary(new QLabel(this))
    , changes(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("changesWindow"));
    setWindowTitle(qtTrId("changes_title"));
    summary->setWordWrap(true);
    changes->setObjectName(QStringLiteral("changes"));
    changes->setAccessibleName(qtTrId("changes_title"));
    changes->setReadOnly(true);
    changes->setTabChangesFocus(true);
    changes->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(12);
    layout->addWidget(summary);
    layout->addWidget(changes, 1);
    closeByKeyboard(*this);
    resize(usualSize);
}

void ChangesWindow::show(const CatalogueComparison& comparison)
{
    summary->setText(comparisonSummary(comparison));
    changes->setPlainText(comparisonText(comparison));
    bringForward(*this);
}

} // namespace tessera
