#pragma once

#include "core/failure.h"

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
    VerificationTool(VerificationPage& page, Workbench& workbench, QObject* parent = nullptr);

public Q_SLOTS:
    void converter2Action();
    void selectVerifytxt();

private:
    void offer(std::expected<std::string, Failure> report, bool isCancelled);
    void save(const QString& path, std::string report);
    void conclude(const std::expected<void, Failure>& written);

    VerificationPage& m_page;
    Workbench& m_workbench;
};

} // namespace tessera
