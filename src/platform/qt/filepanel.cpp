#include "platform/qt/filepanel.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>

namespace tessera {

namespace {

QString pattern(const QStringList& extensions)
{
    QStringList patterns;
    for (const QString& extension : extensions)
        patterns << QStringLiteral("*.") + extension;
    return patterns.join(u' ');
}

// A program of another desktop: a folder that shows itself as one item there.
bool isApplication(const QString& path)
{
    return QFileInfo(path + QStringLiteral("/Contents/Info.plist")).isFile();
}

} // namespace

FilePanel::FilePanel(const QString& title, QWidget* parent)
    : QFileDialog(parent, title)
{
    // A desktop's own panel knows nothing of what follows.
    setOption(DontUseNativeDialog);
    m_name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    leaveFilesAlone();
    layOut();
}

FilePanel::FilePanel(const OpenRequest& request, QWidget* parent)
    : FilePanel(request.title, parent)
{
    m_request = request;
    setFileMode(request.files ? ExistingFile : Directory);
    setOption(ShowDirsOnly, !request.files);
    // One that is not there would be where the next panel begins.
    if (const QString start = request.directory.toLocalFile(); !start.isEmpty() && QFileInfo(start).isDir())
        setDirectory(start);
    if (request.files && !request.extensions.isEmpty())
        setNameFilter(pattern(request.extensions));
    else if (request.files && !request.kind.isEmpty())
        setNameFilters({qtTrId("panel_all_files") + QStringLiteral(" (*)"), pattern(request.kind)});
    connect(this, &QFileDialog::currentChanged, this, &FilePanel::nameFolder);
    connect(this, &QFileDialog::directoryEntered, this, &FilePanel::enterFolder);
    connect(m_name, &QLineEdit::textChanged, this, &FilePanel::updateButton);
}

FilePanel::FilePanel(const SaveRequest& request, QWidget* parent)
    : FilePanel(request.title, parent)
{
    m_request.files = false;
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    if (!request.extensions.isEmpty()) {
        setNameFilter(pattern(request.extensions));
        setDefaultSuffix(request.extensions.constFirst());
    }
    selectFile(request.name);
}

void FilePanel::leaveFilesAlone()
{
    for (const char* name : {"qt_delete_action", "qt_rename_action"}) {
        if (auto* action = findChild<QAction*>(QLatin1StringView(name)))
            action->setVisible(false);
    }
    for (auto* view : findChildren<QAbstractItemView*>()) {
        view->setEditTriggers(QAbstractItemView::NoEditTriggers);
        view->setDragDropMode(QAbstractItemView::NoDragDrop);
        for (auto* shortcut : view->findChildren<QShortcut*>()) {
            if (shortcut->key() == QKeySequence(Qt::Key_Delete))
                delete shortcut;
        }
    }
}

// Names have what sizes, kinds and dates leave, and those are whole.
void FilePanel::layOut()
{
    resize(860, 540);
    auto* details = findChild<QTreeView*>(QStringLiteral("treeView"));
    details->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    details->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

std::optional<QString> FilePanel::run()
{
    if (exec() != Accepted)
        return std::nullopt;
    if (m_chosen.isEmpty())
        m_chosen = selectedFiles().value(0);
    return m_chosen.isEmpty() ? std::nullopt : std::optional(m_chosen);
}

bool FilePanel::takes(const QString& path) const
{
    const QFileInfo item(path);
    if (item.isDir())
        return m_request.folders || (m_request.applications && isApplication(path));
    return m_request.files && item.exists();
}

QString FilePanel::namedPath() const
{
    QString name = m_name->text();
    if (name == u'~' || name.startsWith(QStringLiteral("~/")))
        name.replace(0, 1, QDir::homePath());
    return name.isEmpty() ? QString() : QDir::cleanPath(directory().absoluteFilePath(name));
}

// The dialog itself would also count what is selected, which is another item while a path is typed.
void FilePanel::accept()
{
    if (const QString path = namedPath(); takes(path))
        choose(path);
    else
        QFileDialog::accept();
}

void FilePanel::choose(const QString& path)
{
    m_chosen = path;
    done(Accepted);
}

// Where files are chosen, the dialog names files only.
void FilePanel::nameFolder(const QString& path)
{
    if (QFileInfo(path).isDir() && takes(path) && !m_name->hasFocus())
        m_name->setText(QFileInfo(path).fileName());
}

void FilePanel::enterFolder(const QString& path)
{
    if (m_request.applications && isApplication(path))
        choose(path);
}

void FilePanel::updateButton()
{
    auto* box = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    if (takes(namedPath()))
        box->button(QDialogButtonBox::Open)->setEnabled(true);
}

} // namespace tessera
