#include "app/verbs/manpage.h"

#include "app/verbs/verbs.h"

namespace tessera {

namespace {

// As text of a line that is no request.
QString escaped(const char* text)
{
    QString line = QLatin1String(text);
    line.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    line.replace(u'"', QStringLiteral("\\(dq")).replace(u'\'', QStringLiteral("\\(aq"));
    return line.startsWith(u'.') ? QStringLiteral("\\&") + line : line;
}

constexpr const char* beginning = R"(.SH NAME
tessera \- browse, search and play everything that MAME knows
.SH SYNOPSIS
.B tessera
.RI [ FILE ]
.br
.B tessera
.I VERB
\&...
.SH DESCRIPTION
Without a verb the windows open: a catalogue of every machine that a MAME knows, with pictures, history,
favourites and the settings that games are started with.
A
.I FILE
is an archive of ROMs, which is started in the emulator.
A verb does one job without a display.
.SH VERBS
)";

constexpr const char* end = R"(.SH OPTIONS
.TP
.B \-\-help
Lists the verbs;
.B tessera
.I VERB
.B \-\-help
tells more of one.
.TP
.B \-\-version
Prints the version.
.SH EXIT STATUS
.TP
.B 0
The job is done.
.TP
.B 1
It failed; the reason stands on the standard error.
.TP
.B 2
The command line is wrong.
.PP
.B launch
and
.B command
end with the status of the emulator.
.SH FILES
.TP
.I $XDG_CONFIG_HOME/Tessera/Tessera.ini
The settings.
.TP
.I $XDG_DATA_HOME/Tessera/
The catalogue and your own BIOS list; earlier ones lie beside them under dated names.
.TP
.I $XDG_DATA_HOME/Plover.Tessera/
The favourites and what was played, kept in the same way.
.SH SEE ALSO
.BR mame (6)
)";

} // namespace

QString manPage(const QString& version)
{
    QString page = QStringLiteral(".TH TESSERA 1 \"\" \"Tessera %1\" \"User Commands\"\n").arg(version)
        + QLatin1String(beginning);
    for (const Verb& verb : verbs()) {
        page += QStringLiteral(".TP\n.B %1\n%2\n.br\n%3\n")
                    .arg(escaped(verb.name), escaped(verb.form), escaped(verb.summary));
    }
    return page + QLatin1String(end);
}

} // namespace tessera
