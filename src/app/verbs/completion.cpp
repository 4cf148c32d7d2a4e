#include "app/verbs/completion.h"

#include "app/verbs/verbs.h"
#include "catalogue/cataloguepath.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/search/searchkeys.h"
#include "catalogue/storereader.h"
#include "core/settingskeys.h"

#include <algorithm>

namespace tessera {

namespace {

/// What a verb's form says: "NAME", "[GAME]", "--dialect sdl|osx".
struct Form {
    struct Option {
        QString name;
        QString value; ///< empty for one that stands alone
    };
    QList<Option> options;
    QStringList arguments;
};

bool isOption(QStringView word)
{
    return word.size() > 1 && word[0] == u'-' && (word[1].isLower() || (word.size() > 2 && word[1] == u'-'));
}

Form readForm(const char* text)
{
    Form form;
    const QStringList words = QString(QLatin1String(text)).split(u' ', Qt::SkipEmptyParts);
    const auto bare
        = [](QString word) { return word.remove(u'[').remove(u']').remove(QStringLiteral("...")); };
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString word = bare(words[i]);
        if (!isOption(word)) {
            if (!word.startsWith(u'-'))
                form.arguments << word;
            continue;
        }
        const bool isAlone = words[i].contains(u']') || i + 1 == words.size();
        form.options << Form::Option{word, isAlone ? QString() : bare(words[i + 1])};
        i += isAlone ? 0 : 1;
    }
    return form;
}

QStringList setNames(const QString& begun)
{
    const auto stored = readStore(standardCataloguePath());
    if (!stored)
        return {};
    QStringList names;
    for (const GameRecord& record : stored->records) {
        if (const QString name = fieldText(record[Field::Name]); name.startsWith(begun))
            names << name;
    }
    names.sort();
    return names;
}

QStringList settingKeys()
{
    QStringList keys{keys::RomsPath.name + QStringLiteral("="),
                     keys::ExecutionPath.name + QStringLiteral("=")};
    for (const InitialSetting& row : initialSettings)
        keys << row.name + QStringLiteral("=");
    return keys;
}

QStringList termKeys()
{
    QStringList terms;
    for (const SearchKey& key : searchKeys)
        terms << fieldText(key.name) + u':';
    return terms;
}

// What may stand where a form says `place`.
QStringList valuesOf(const QString& place, const QString& begun)
{
    if (place == QStringLiteral("GAME") || place == QStringLiteral("NAME"))
        return setNames(begun);
    if (place == QStringLiteral("KEY=VALUE"))
        return settingKeys();
    if (place == QStringLiteral("QUERY"))
        return termKeys();
    return place.contains(u'|') ? place.split(u'|') : QStringList();
}

QStringList beginningWith(const QString& begun, QStringList words)
{
    words.removeIf([&](const QString& word) { return !word.startsWith(begun); });
    return words;
}

const Form::Option* optionNamed(const Form& form, const QString& name)
{
    const auto option = std::ranges::find(form.options, name, &Form::Option::name);
    return option != form.options.end() ? &*option : nullptr;
}

// The place in the form of the argument behind these words.
QString nextArgument(const Form& form, const QStringList& before)
{
    qsizetype given = 0;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const Form::Option* option = optionNamed(form, before[i]);
        if (option == nullptr)
            ++given;
        else if (!option->value.isEmpty())
            ++i;
    }
    return form.arguments.isEmpty() ? QString() : form.arguments[std::min(given, form.arguments.size() - 1)];
}

QStringList verbNamesAndOptions()
{
    QStringList names;
    for (const Verb& verb : verbs())
        names << QLatin1String(verb.name);
    return names << QStringLiteral("--help") << QStringLiteral("--version");
}

} // namespace

QStringList completions(const QStringList& words)
{
    const QString begun = words.isEmpty() ? QString() : words.back();
    if (words.size() < 2)
        return beginningWith(begun, verbNamesAndOptions());
    const Verb* verb = verbNamed(words.front());
    if (verb == nullptr)
        return {};
    const Form form = readForm(verb->form);
    if (const Form::Option* option = optionNamed(form, words[words.size() - 2]);
        option != nullptr && !option->value.isEmpty())
        return beginningWith(begun, valuesOf(option->value, begun));
    if (begun.startsWith(u'-')) {
        QStringList names{QStringLiteral("--help")};
        for (const Form::Option& option : form.options)
            names << option.name;
        return beginningWith(begun, names);
    }
    const QStringList before = words.sliced(1, words.size() - 2);
    return beginningWith(begun, valuesOf(nextArgument(form, before), begun));
}

} // namespace tessera
