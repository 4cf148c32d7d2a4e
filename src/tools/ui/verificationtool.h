#pragma once

#include "core/failure.h"
#include "tools/ui/utilityhost.h"
#include "tools/verifiedsets.h"

#include <QObject>

#include <expected>
#include <string>

namespace tessera {

class VerificationPage;
class Workbench;

/// The commands of the verification report.
class VerificationTool : public QObject
{
    Q_OBJECT

public:
    VerificationTool(VerificationPage& page, Workbench& workbench, UtilityHost& host,
                     QObject* parent = nullptr);

public Q_SLOTS:
    void converter2Action();
    /// Lets the emulator verify its ROMs now; what it prints goes to the field as a file.
    void askEmulator();

private:
    /// What a text comes to.
    struct Condensed {
        std::string report;
        std::vector<VerifiedSet> sets;
    };

    void offer(Condensed condensed);
    void takeVerified(std::vector<VerifiedSet> sets);
    void save(const QString& path, std::string report);
    void conclude(const std::expected<void, Failure>& written);

    VerificationPage& m_page;
    Workbench& m_workbench;
    UtilityHost& m_host;
};

} // namespace tessera
