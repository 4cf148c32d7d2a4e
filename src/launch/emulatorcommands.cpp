#include "launch/emulatorcommands.h"

namespace tessera {

namespace {

// The positions up to here are about the emulator as a whole; no position counts among them.
constexpr int lastWithoutGame = 6;

template <class Rows, class Row>
const Row& rowAt(const Rows& rows, int position, const Row& other)
{
    const auto place = static_cast<std::size_t>(position);
    return position >= 0 && place < rows.size() ? rows[place] : other;
}

QString firstArgument(Subject subject, const CommandSubjects& subjects)
{
    switch (subject) {
    case Subject::Game:
        return subjects.game;
    case Subject::Archive:
        return subjects.archive;
    case Subject::Executable:
        return subjects.executable;
    case Subject::None:
        break;
    }
    return QString();
}

} // namespace

const CommandRow& commandRow(int position)
{
    static constexpr CommandRow separator{};
    return rowAt(commandRows, position, separator);
}

const ExportRow& exportRow(int position)
{
    return rowAt(exportRows, position, exportSeparator);
}

std::optional<QStringList> commandArguments(int position, const CommandSubjects& subjects)
{
    const CommandRow& row = commandRow(position);
    QStringList arguments;
    if (row.subject != Subject::None) {
        if (subjects.game.isEmpty())
            return std::nullopt;
        arguments << firstArgument(row.subject, subjects);
    }
    if (row.argument != nullptr)
        arguments << QString::fromLatin1(row.argument);
    return arguments;
}

QStringList exportArguments(int position)
{
    const ExportRow& row = exportRow(position);
    return row.argument == nullptr ? QStringList() : QStringList{QString::fromLatin1(row.argument)};
}

QString commandHeader(int position, const QString& game, const QString& title)
{
    // The selected game is named even where the command begins with something else.
    const QString what = position <= lastWithoutGame ? title : game + QLatin1Char(' ') + title;
    return QStringLiteral("Command:  mame  ") + what + QStringLiteral(" , is executed...\n\n");
}

QString exportHeader(const QString& title)
{
    return QStringLiteral("Command:  mame  ") + title + QStringLiteral(" , is executing...\n\n");
}

} // namespace tessera
