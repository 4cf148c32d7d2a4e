#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace tessera {

/// In the language that was chosen, "en" or "ja"; without a choice Japanese where the user's own language is
/// Japanese, English elsewhere. `translator` outlives every text.
inline void installTexts(QTranslator& translator, const QString& chosen)
{
    const bool japanese
        = chosen.isEmpty() ? QLocale().language() == QLocale::Japanese : chosen == QStringLiteral("ja");
    if (translator.load(japanese ? QStringLiteral(":/texts/tessera_ja.qm")
                                 : QStringLiteral(":/texts/tessera_en.qm")))
        QCoreApplication::installTranslator(&translator);
}

} // namespace tessera
