#include "favourites/optionwords.h"

namespace tessera {

namespace {

bool isNumber(QStringView word)
{
    bool isGood = false;
    (void)word.toDouble(&isGood);
    return isGood;
}

} // namespace

QStringList optionsOf(const QString& words)
{
    QStringList options;
    for (const QString& word : words.split(QLatin1Char(' '))) {
        if (word.size() > 1 && word.startsWith(QLatin1Char('-')) && !isNumber(word))
            options << word;
    }
    return options;
}

QStringList unknownOptions(const QString& words, const std::function<bool(QStringView)>& lists)
{
    QStringList unknown;
    for (const QString& option : optionsOf(words)) {
        if (!lists(option) && !unknown.contains(option))
            unknown << option;
    }
    return unknown;
}

WordAt wordBefore(const QString& text, qsizetype cursor)
{
    const QString before = text.first(cursor);
    const qsizetype begin = before.lastIndexOf(QLatin1Char(' ')) + 1;
    return {begin, before.sliced(begin)};
}

} // namespace tessera
