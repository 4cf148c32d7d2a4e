#pragma once

#include "platform/desktop.h"

#include <QFileDialog>

class QLineEdit;

namespace tessera {

/// An open or save panel. What its name field says is what it gives, and it changes no file: it makes
/// folders, but removes, renames and moves nothing.
class FilePanel : public QFileDialog
{
    Q_OBJECT

public:
    FilePanel(const OpenRequest& request, QWidget* parent);
    FilePanel(const SaveRequest& request, QWidget* parent);

    /// The chosen item's path; nothing after Cancel.
    std::optional<QString> run();

protected:
    void accept() override;

private:
    explicit FilePanel(const QString& title, QWidget* parent);
    void leaveFilesAlone();
    void layOut();
    bool takes(const QString& path) const;
    QString namedPath() const;
    void choose(const QString& path);
    void nameFolder(const QString& path);
    void enterFolder(const QString& path);
    void updateButton();

    OpenRequest m_request;
    QLineEdit* m_name;
    QString m_chosen;
};

} // namespace tessera
