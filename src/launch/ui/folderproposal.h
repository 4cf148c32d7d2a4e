#pragma once

#include <QWidget>

class QVBoxLayout;

namespace tessera {

/// Folders that the emulator itself uses, each with a button that takes it.
class FolderProposal : public QWidget
{
    Q_OBJECT

public:
    /// `sentence` says what they are.
    FolderProposal(const char* objectName, const QString& sentence, QWidget* parent = nullptr);

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
