#pragma once

#include "tools/existence.h"
#include "tools/ui/utilityhost.h"

#include <QObject>

namespace tessera {

class ExistencePage;
class Workbench;

/// The commands of the existence report.
class ExistenceTool : public QObject
{
    Q_OBJECT

public:
    ExistenceTool(ExistencePage& page, Workbench& workbench, UtilityHost& host, QObject* parent = nullptr);

    /// "Found" or "Not found"; counted.
    QString existscheck(const QString& setName);
    int fNumber() const { return m_found; }
    int nNumber() const { return m_notFound; }
    /// The last report that was to be saved.
    const std::string& reportString() const { return m_report; }

public Q_SLOTS:
    void romlistup();
    /// The same with what the emulator lists now.
    void askEmulator();
    void saveAction();
    void exportCsv();
    void clear_reportController();

private:
    void begin();
    void takePrinted(const std::string& printed);
    std::vector<ExistenceRow> rows() const;
    void show(std::expected<ExistenceList, Failure> list, bool isCancelled);
    void stopWithoutHeader(const Failure& failure);
    void write(const QString& path);

    ExistencePage& m_page;
    Workbench& m_workbench;
    UtilityHost& m_host;
    int m_found = 0;
    int m_notFound = 0;
    std::string m_report;
};

} // namespace tessera
