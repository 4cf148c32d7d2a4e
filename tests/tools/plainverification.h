#pragma once

#include <QSet>
#include <QStringList>

namespace tessera::test {

/// The rules of the verification report once more, as plainly as they can be said. `chosen` are the keys'
/// endings.
inline QString plainVerification(const QString& text, const QSet<QString>& chosen)
{
    struct Rule {
        const char* ending;
        const char* words;
        const char* summary;
    };
    const Rule rules[] = {
        {"isgood", "is good", "\n(is good: %1)\n\n"},
        {"isbesta", "is best available", "\n(is best available: %1)\n\n"},
        {"iclength", "INCORRECT LENGTH", "\n(INCORRECT LENGTH: %1)\n\n"},
        {"iccsum", "INCORRECT CHECKSUM", "\n(INCORRECT CHECKSUM: %1)\n\n"},
        {"nredump", "NEEDS REDUMP", "\n(NEEDS REDUMP: %1)\n\n"},
        {"ngdk", "NO GOOD DUMP KNOWN", "\n(NO GOOD DUMP KNOWN: %1)\n\n"},
        {"isbad", "is bad", "\n(is bad: %1)\n\n"},
        {"notfound", nullptr, "\n(NOT FOUND: %1)\n\n"},
        {"nfsparent", "(shared with parent)", "\n(NOT FOUND (shared with parent): %1)\n\n"},
        {"nfngd", "NOT FOUND - NO GOOD DUMP KNOWN", "\n(NOT FOUND - NO GOOD DUMP KNOWN: %1)\n\n"},
        {"nfbo", "NOT FOUND BUT OPTIONAL", "\n(NOT FOUND BUT OPTIONAL: %1)\n\n"},
        {"other", "Other", "\n(Other: %1)\n\n"},
    };
    QString report;
    for (const Rule& rule : rules) {
        if (!chosen.contains(QLatin1String(rule.ending)))
            continue;
        int count = 0;
        for (QString line : text.split(QLatin1Char('\n'))) {
            while (line.startsWith(QLatin1Char(' ')) || line.startsWith(QLatin1Char('\t')))
                line.remove(0, 1);
            const bool belongs = rule.words == nullptr ? line.endsWith(QStringLiteral("NOT FOUND"))
                                                       : line.contains(QLatin1String(rule.words));
            if (!line.isEmpty() && belongs) {
                report += line + QStringLiteral("\n");
                ++count;
            }
        }
        report += QString::fromLatin1(rule.summary).arg(count);
    }
    return report;
}

} // namespace tessera::test
