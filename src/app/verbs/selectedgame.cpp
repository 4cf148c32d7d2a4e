#include "app/verbs/selectedgame.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/storereader.h"

namespace tessera {

std::expected<SelectedGame, Failure> selectedGame(const QString& path, const QString& game)
{
    const auto stored = readStore(path);
    if (!stored)
        return std::unexpected(stored.error());
    const QByteArray name = game.toUtf8();
    for (const GameRecord& record : stored->records) {
        if (record[Field::Name] == std::string_view(name))
            return SelectedGame{game, shownValue(record, Field::Title), shownValue(record, Field::Titlejp)};
    }
    return SelectedGame{game, QString(), QString()};
}

} // namespace tessera
