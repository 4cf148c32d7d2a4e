#include "app/verbs/verbs.h"

#include "info/historytext.h"
#include "platform/userdefaults.h"

#include <QFileInfo>

#include <cerrno>
#include <cstring>

namespace tessera {

namespace {

/// One of the two files, as it is asked for.
struct AskedFile {
    const QCommandLineOption& option;
    QLatin1StringView key;
    QLatin1StringView missing;
};

/// Null where neither an option nor a setting names a file, or after a failure, which has been told.
struct Read {
    std::unique_ptr<InfoFile> file;
    bool hasFailed = false;
};

Read fileFor(const AskedFile& asked, const QCommandLineParser& parser)
{
    const QString path = parser.isSet(asked.option)
        ? parser.value(asked.option)
        : UserDefaults(UserDefaults::standardPath()).string(asked.key);
    if (path.isEmpty())
        return {};
    if (!QFileInfo::exists(path)) {
        missing(QLatin1StringView(asked.missing.data(), asked.missing.indexOf(u'\r')), path);
        return {nullptr, true};
    }
    auto file = InfoFile::read(path);
    if (!file) {
        warn(file.error());
        return {nullptr, true};
    }
    return {std::make_unique<InfoFile>(*std::move(file))};
}

} // namespace

int runHistory(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption history(QStringLiteral("history"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption mameinfo(QStringLiteral("mameinfo"), QString(), QStringLiteral("FILE"));
    parser.addOptions({history, mameinfo});
    if (const auto status = parseVerb(verb, parser, arguments, 1, 1))
        return *status;
    const std::string name = parser.positionalArguments().constFirst().toStdString();
    if (name.empty()) {
        print(historytexts::noName);
        return Done;
    }
    const Read historyFile = fileFor({history, keys::HistoryPath.name, historytexts::historyMissing}, parser);
    const Read infoFile = fileFor({mameinfo, keys::MameinfoPath.name, historytexts::infoMissing}, parser);
    const HistoryText shown = historyText({historyFile.file.get(), infoFile.file.get()}, name);
    if (!printBytes(shown.text))
        return failed(Failure{"failure_write",
                              {QStringLiteral("stdout"), QString::fromLocal8Bit(std::strerror(errno))}});
    if (shown.filedUnder)
        refuse(Message{"history_filed_under", {QString::fromStdString(*shown.filedUnder)}}.text());
    return historyFile.hasFailed || infoFile.hasFailed ? Failed : Done;
}

} // namespace tessera
