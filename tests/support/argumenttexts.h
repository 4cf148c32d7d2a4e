#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace tessera::test {

/// While it lives, every text is its key with its first arguments behind it: "KEY (%1, %2)".
class ArgumentTexts : public QTranslator
{
public:
    ArgumentTexts() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    /// Those of the toolkit have a context and stay as they are.
    QString translate(const char* context, const char* key, const char*, int) const override
    {
        return context != nullptr && *context != 0 ? QString()
                                                   : QString::fromLatin1(key) + QStringLiteral(" (%1, %2)");
    }
};

} // namespace tessera::test
