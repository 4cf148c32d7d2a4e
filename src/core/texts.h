#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <concepts>

namespace tessera {

/// The language that was chosen, "en" or "ja"; without a choice Japanese where the user's own language is
/// Japanese, English elsewhere.
inline QString textLanguage(const QString& chosen)
{
    const bool japanese
        = chosen.isEmpty() ? QLocale().language() == QLocale::Japanese : chosen == QStringLiteral("ja");
    return japanese ? QStringLiteral("ja") : QStringLiteral("en");
}

/// Our own texts. `translator` outlives every text.
inline void installTexts(QTranslator& translator, const QString& chosen)
{
    if (translator.load(QStringLiteral(":/texts/tessera_") + textLanguage(chosen) + QStringLiteral(".qm")))
        QCoreApplication::installTranslator(&translator);
}

/// Those that the toolkit's own windows have, as far as they are installed.
inline void installToolkitTexts(QTranslator& translator, const QString& chosen)
{
    if (translator.load(QStringLiteral("qtbase_") + textLanguage(chosen),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}

/// As the user's language writes it.
inline QString numberText(std::integral auto number)
{
    return QLocale().toString(static_cast<qlonglong>(number));
}

} // namespace tessera
