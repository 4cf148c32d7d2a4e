#pragma once

#include <QWidget>

class QVBoxLayout;

namespace tessera {

/// Folders in which the emulator itself looks for ROMs, each with a button that takes it.
class RomProposal : public QWidget
{
    Q_OBJECT

public:
    explicit RomProposal(QWidget* parent = nullptr);

    void setFolders(const QStringList& folders);
    /// Nothing is proposed where a folder is chosen.
    void setWanted(bool wanted);

Q_SIGNALS:
    void taken(const QString& folder);

private:
    void addFolder(const QString& folder);
    void showOrHide();

    QVBoxLayout* m_layout;
    QStringList m_folders;
    QList<QWidget*> m_rows;
    bool m_isWanted = false;
};

} // namespace tessera
