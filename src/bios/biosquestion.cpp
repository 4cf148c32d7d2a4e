#include "bios/biosquestion.h"

#include <algorithm>

namespace tessera {

bool isSetName(const QString& name)
{
    return !name.isEmpty() && std::ranges::all_of(name, [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_';
    });
}

BiosQuestion::BiosQuestion(const QString& emulator, const QString& set, QObject* parent)
    : QObject(parent)
    , m_emulator(emulator)
    , m_set(set)
    , m_sets(set.isEmpty() ? BiosSets::Machines::BiosOnly : BiosSets::Machines::All)
{
    m_process.setStandardErrorFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::readyReadStandardOutput, this, [this] {
        const QByteArray piece = m_process.readAllStandardOutput();
        m_sets.take({piece.constData(), static_cast<std::size_t>(piece.size())});
    });
    connect(&m_process, &QProcess::finished, this, &BiosQuestion::end);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Q_EMIT failed(Failure{"bios_not_started", {m_emulator, m_process.errorString()}});
    });
}

void BiosQuestion::ask()
{
    QStringList arguments{QStringLiteral("-listxml")};
    if (!m_set.isEmpty())
        arguments << m_set;
    m_process.run(m_emulator, arguments);
}

void BiosQuestion::end(int status, QProcess::ExitStatus how)
{
    m_sets.end();
    if (how != QProcess::NormalExit || status != 0)
        Q_EMIT failed(Failure{"bios_no_answer", {m_emulator}});
    else
        Q_EMIT answered();
}

} // namespace tessera
