// The favourites' commands that read and write their file.

#include "favourites/ui/ucappcontroller.h"

#include "core/atomicfile.h"
#include "core/keptcopy.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace tessera {

namespace {

constexpr int nothingSelected = -1;

} // namespace

QString UCAppController::pathOfDataFile() const
{
    return m_parts.favourites.path();
}

void UCAppController::set_favorites()
{
    const auto opened = m_parts.favourites.open();
    if (!opened) {
        m_parts.desktop.log(QStringLiteral("Data load error: ") + opened.error().text());
    } else if (*opened == Favourites::Opened::NoFile) {
        m_parts.desktop.log(QStringLiteral("Favorites.xml file not found."));
    } else if (*opened == Favourites::Opened::EmptyList) {
        // An empty list has no error to describe.
        m_parts.desktop.log(QStringLiteral("Data load error: (null)"));
    } else {
        // The row is counted in the order of now: at start that of the file, although the stored one was
        // counted in the order that was shown. Nothing stored is the first row.
        const auto stored = m_parts.defaults.stored().value(keys::FavoriteTable.name);
        const qint64 row = stored ? stored->toLongLong() : 0;
        if (row >= 0 && row < static_cast<qint64>(list().size()))
            selectRow(static_cast<int>(row));
    }
}

void UCAppController::saveFavorites()
{
    commitEditing();
    const int row = firstRow();
    m_parts.defaults.keep(keys::FavoriteTable, row < 0 ? nothingSelected : row);
    m_parts.defaults.flush();
    // Deliberate: an edit alone is not written, a cancelled removal is. Nobody is asked at quit: the log
    // alone tells of a failure.
    if (!m_favoritesUpdate)
        return;
    if (const auto written = writeFile(); !written)
        m_parts.desktop.log(QStringLiteral("save error: ") + written.error().text());
}

void UCAppController::saveFavouritesNow()
{
    commitEditing();
    m_favoritesUpdate = true;
    if (const auto written = writeFile(); !written)
        m_parts.desktop.presentError(written.error().text(), QString(), {});
    else
        Q_EMIT statusMessage(qtTrId("favourites_saved"));
}

std::expected<void, Failure> UCAppController::writeFile()
{
    const auto text = m_parts.favourites.text();
    if (!text)
        return std::unexpected(text.error());
    dir_make(QFileInfo(pathOfDataFile()).path());
    return m_parts.favourites.write(*text);
}

std::expected<QString, Failure> UCAppController::keepUnsaved()
{
    commitEditing();
    if (m_parts.favourites.undoStack().isClean())
        return QString();
    const auto text = m_parts.favourites.text();
    if (!text)
        return std::unexpected(text.error());
    QString path = freeName(datedName(pathOfDataFile(), m_parts.desktop.now()));
    dir_make(QFileInfo(path).path());
    if (const auto written = writeAtomically(path, std::array{std::string_view(*text)}); !written)
        return std::unexpected(written.error());
    return path;
}

void UCAppController::dir_make(const QString& path)
{
    if (QFileInfo::exists(path))
        return;
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(path).toStdString(), error);
    if (error)
        // A line of the log is the same in every language.
        m_parts.desktop.log(QStringLiteral("ディレクトリ作成でエラー発生: %1: %2")
                                .arg(path, QString::fromStdString(error.message())));
}

void UCAppController::commitEditing()
{
    ListController::commitEditing();
    Q_EMIT commitRequested();
}

} // namespace tessera
