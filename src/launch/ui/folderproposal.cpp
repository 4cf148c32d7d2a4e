#include "launch/ui/folderproposal.h"
#include "widgets/plaintooltip.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace tessera {

namespace {
constexpr int pathWidth = 380;
constexpr qsizetype mostFolders = 3;
}

FolderProposal::FolderProposal(const char* objectName, const QString& sentence, QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName(QLatin1String(objectName));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(4);
    auto* says = new QLabel(sentence);
    says->setProperty("role", QStringLiteral("dim"));
    m_layout->addWidget(says);
    hide();
}

void FolderProposal::setFolders(const QStringList& folders)
{
    const QStringList shown = folders.first(std::min(folders.size(), mostFolders));
    if (std::exchange(m_folders, shown) == shown)
        return;
    qDeleteAll(std::exchange(m_rows, {}));
    for (const QString& folder : shown)
        addFolder(folder);
    showOrHide();
}

void FolderProposal::setWanted(bool wanted)
{
    m_isWanted = wanted;
    showOrHide();
}

void FolderProposal::addFolder(const QString& folder)
{
    auto* row = new QWidget;
    auto* path = new QLabel(fontMetrics().elidedText(folder, Qt::ElideMiddle, pathWidth));
    path->setTextFormat(Qt::PlainText);
    path->setToolTip(plainToolTip(folder));
    auto* use = new QPushButton(qtTrId("folder_use"));
    use->setProperty("role", QStringLiteral("link"));
    use->setAccessibleName(use->text() + QStringLiteral(": ") + folder);
    connect(use, &QPushButton::clicked, this, [this, folder] { Q_EMIT taken(folder); });
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(path);
    layout->addWidget(use);
    layout->addStretch();
    m_layout->addWidget(row);
    m_rows << row;
}

void FolderProposal::showOrHide()
{
    setVisible(m_isWanted && !m_folders.isEmpty());
}

} // namespace tessera
