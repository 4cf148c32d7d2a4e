#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace tessera::test {

/// While it lives, texts are the real ones of a language ("en", "ja"); elsewhere a test sees their keys. For
/// a program that has them built in.
class InstalledTexts
{
public:
    explicit InstalledTexts(const QString& language)
    {
        if (!m_translator.load(QStringLiteral(":/texts/tessera_") + language + QStringLiteral(".qm"))
            || !QCoreApplication::installTranslator(&m_translator))
            qFatal("no texts");
    }
    // A translator that goes away is removed.

private:
    QTranslator m_translator;
};

} // namespace tessera::test
