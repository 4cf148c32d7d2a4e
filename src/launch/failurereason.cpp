#include "launch/failurereason.h"

#include <QRegularExpression>
#include <QStringList>

#include <optional>

namespace tessera {

namespace {

constexpr qsizetype mostNamed = 6; // files, or names

using Expression = QRegularExpression;

// "a, b, c and 4 more"
QString listed(const QStringList& names)
{
    QString text = names.mid(0, mostNamed).join(QStringLiteral(", "));
    if (names.size() > mostNamed)
        text = Message{"reason_more", {text, QString::number(names.size() - mostNamed)}}.text();
    return text;
}

QStringList allOf(const QString& printed, const Expression& expression)
{
    QStringList found;
    for (const auto& match : expression.globalMatch(printed)) {
        if (!found.contains(match.captured(1)))
            found << match.captured(1);
    }
    return found;
}

// The archives are named since 0.139; the first of a line is where the file belongs.
std::optional<Failure> missingFiles(const QString& printed)
{
    static const Expression missing(QStringLiteral("^(\\S.*?)(?<! -) NOT FOUND(?! BUT|.*NO GOOD DUMP)"),
                                    Expression::MultilineOption);
    static const Expression archive(QStringLiteral("NOT FOUND \\(tried in ([^\\s)]+)"));
    const QStringList files = allOf(printed, missing);
    if (files.isEmpty())
        return std::nullopt;
    const QStringList archives = allOf(printed, archive);
    if (archives.isEmpty())
        return Failure{"reason_missing", {listed(files)}};
    QStringList names;
    for (const QString& name : archives)
        names << name + QStringLiteral(".zip");
    return Failure{"reason_missingfrom", {listed(files), listed(names)}};
}

// Files of another version than the emulator's.
std::optional<Failure> wrongFiles(const QString& printed)
{
    static const Expression wrong(QStringLiteral("^(\\S.*?) (?:WRONG|INCORRECT) (?:LENGTH|CHECKSUM)"),
                                  Expression::MultilineOption);
    const QStringList files = allOf(printed, wrong);
    if (files.isEmpty())
        return std::nullopt;
    return Failure{"reason_wrong", {listed(files)}};
}

std::optional<Failure> unknownOption(const QString& printed)
{
    static const Expression option(QStringLiteral("unknown option: (\\S+)"),
                                   Expression::CaseInsensitiveOption);
    const auto match = option.match(printed);
    if (!match.hasMatch())
        return std::nullopt;
    return Failure{"reason_option", {match.captured(1)}};
}

// Behind the system's name stand those that resemble it, the best first, each with its title.
std::optional<Failure> unknownSystem(const QString& printed)
{
    static const Expression system(QStringLiteral("^Unknown system ['\"](.*?)['\"]"),
                                   Expression::MultilineOption);
    static const Expression close(QStringLiteral("^([a-z0-9_]+)\\s{2,}\\S"), Expression::MultilineOption);
    const auto match = system.match(printed);
    if (!match.hasMatch())
        return std::nullopt;
    const QStringList names = allOf(printed.mid(match.capturedEnd()), close);
    if (names.isEmpty())
        return Failure{"reason_system", {match.captured(1)}};
    return Failure{"reason_closesystems", {match.captured(1), listed(names)}};
}

std::optional<Failure> noDisplay(const QString& printed)
{
    static const Expression display(
        QStringLiteral("could not initialize sdl|no available video device|x11 not available"
                       "|(cannot|unable to|can't|couldn't|could not) open (x |the )?display"),
        Expression::CaseInsensitiveOption);
    if (!display.match(printed).hasMatch())
        return std::nullopt;
    return Failure{"reason_display", {}};
}

} // namespace

std::vector<Failure> failureReasons(const QString& printed)
{
    std::vector<Failure> reasons;
    for (const auto& reason : {missingFiles, wrongFiles, unknownOption, unknownSystem, noDisplay}) {
        if (const auto found = reason(printed))
            reasons.push_back(*found);
    }
    return reasons;
}

} // namespace tessera
