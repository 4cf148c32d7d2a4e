#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace tessera {

/// Japanese where the user's language is Japanese, English elsewhere. `translator` outlives every text.
inline void installTexts(QTranslator& translator)
{
    const bool japanese = QLocale().language() == QLocale::Japanese;
    if (translator.load(japanese ? QStringLiteral(":/texts/tessera_ja.qm")
                                 : QStringLiteral(":/texts/tessera_en.qm")))
        QCoreApplication::installTranslator(&translator);
}

} // namespace tessera
