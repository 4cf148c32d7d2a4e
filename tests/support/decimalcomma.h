#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <clocale>

namespace tessera::test {

/// While it lives, the C library's numbers have a comma. Few systems have such a locale installed, so that
/// one is made for the purpose, of nothing but ASCII and its numbers.
class DecimalComma
{
public:
    DecimalComma()
        : m_before(std::setlocale(LC_NUMERIC, nullptr))
        , m_pathBefore(qgetenv("LOCPATH"))
    {
        if (!make())
            return;
        qputenv("LOCPATH", QFile::encodeName(m_folder.path()));
        m_holds = std::setlocale(LC_NUMERIC, "comma") != nullptr
            && QByteArray(std::localeconv()->decimal_point) == ",";
    }
    ~DecimalComma()
    {
        std::setlocale(LC_NUMERIC, m_before.constData());
        if (m_pathBefore.isNull())
            qunsetenv("LOCPATH");
        else
            qputenv("LOCPATH", m_pathBefore);
    }
    DecimalComma(const DecimalComma&) = delete;
    DecimalComma& operator=(const DecimalComma&) = delete;

    static bool canBeMade() { return !QStandardPaths::findExecutable(QStringLiteral("localedef")).isEmpty(); }
    bool holds() const { return m_holds; }

private:
    bool make() const
    {
        QByteArray characters = "<code_set_name> comma\n<mb_cur_min> 1\n<mb_cur_max> 1\n"
                                "<comment_char> %\n<escape_char> /\nCHARMAP\n";
        for (int c = 0; c < 0x80; ++c) {
            const QByteArray digits = QByteArray::number(c, 16).rightJustified(2, '0');
            characters += "<U00" + digits.toUpper() + "> /x" + digits + " C" + digits + '\n';
        }
        write("characters", characters + "END CHARMAP\n");
        write("definition",
              "LC_NUMERIC\ndecimal_point \"<U002C>\"\nthousands_sep \"\"\ngrouping -1\nEND LC_NUMERIC\n");
        // It warns of all that is left out, and ends with 1 for it.
        QProcess localedef;
        localedef.setStandardOutputFile(QProcess::nullDevice());
        localedef.setStandardErrorFile(QProcess::nullDevice());
        localedef.start(QStringLiteral("localedef"),
                        {QStringLiteral("-c"), QStringLiteral("-i"), path("definition"), QStringLiteral("-f"),
                         path("characters"), path("comma")});
        return localedef.waitForFinished();
    }

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }

    QTemporaryDir m_folder;
    QByteArray m_before;
    QByteArray m_pathBefore;
    bool m_holds = false;
};

} // namespace tessera::test
