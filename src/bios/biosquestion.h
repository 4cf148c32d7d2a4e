#pragma once

#include "bios/biossets.h"
#include "launch/emulatorprocess.h"

namespace tessera {

/// Asks an emulator which BIOS sets it knows. The answer comes from the event loop; a question that is still
/// open ends with the object.
class BiosQuestion : public QObject
{
    Q_OBJECT

public:
    /// With a set's name, only what this set can choose from; otherwise all BIOS of the emulator.
    BiosQuestion(const QString& emulator, const QString& set, QObject* parent = nullptr);
    void ask();
    const BiosEntries& entries() const { return m_sets.entries(); }

Q_SIGNALS:
    void answered();
    void failed(const tessera::Failure& failure);

private:
    void end(int status, QProcess::ExitStatus how);

    QString m_emulator;
    QString m_set;
    BiosSets m_sets;
    EmulatorProcess m_process;
};

/// Whether a name can be handed to an emulator as a set, and be taken for nothing else.
bool isSetName(const QString& name);

} // namespace tessera
