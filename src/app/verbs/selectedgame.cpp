#include "app/verbs/selectedgame.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/storereader.h"
#include "launch/commandline.h"

#include <QFileInfo>

namespace tessera {

QString gameReference(const QString& given)
{
    return given.contains(QLatin1Char('/')) ? QFileInfo(given).absoluteFilePath() : given;
}

std::expected<SelectedGame, Failure> selectedGame(const QString& path, const QString& game)
{
    const auto stored = readStore(path);
    if (!stored)
        return std::unexpected(stored.error());
    const QString set = gameName(game);
    const QByteArray name = set.toUtf8();
    for (const GameRecord& record : stored->records) {
        if (record[Field::Name] == std::string_view(name))
            return SelectedGame{set, shownValue(record, Field::Title), shownValue(record, Field::Titlejp)};
    }
    return SelectedGame{set, QString(), QString()};
}

} // namespace tessera
