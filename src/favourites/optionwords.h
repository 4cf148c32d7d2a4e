#pragma once

#include <QStringList>

#include <functional>

namespace tessera {

/// The options among a favourite's words, "-volume" but not its "-12". The words are what stands between
/// blanks; two blanks have an empty one between them, which is sent too.
QStringList optionsOf(const QString& words);

/// Those that the emulator does not list, each once.
QStringList unknownOptions(const QString& words, const std::function<bool(QStringView option)>& lists);

/// A word and its place in the text.
struct WordAt {
    qsizetype begin = 0;
    QString word;
};

/// What stands left of the cursor in the word that it is in.
WordAt wordBefore(const QString& text, qsizetype cursor);

} // namespace tessera
