#pragma once

#include "tools/separation.h"

#include <QObject>
#include <QThreadPool>

namespace tessera {

class Job;
class SeparationPage;
class Workbench;

/// The commands of the ROM separation.
class SeparationTool : public QObject
{
    Q_OBJECT

public:
    SeparationTool(SeparationPage& page, Workbench& workbench, QObject* parent = nullptr);
    ~SeparationTool() override;

    /// The names of the ROM folder's entries that are listed.
    std::vector<std::string> romlist() const;
    /// Copies one entry of the ROM folder to the destination.
    void movefile(const QString& fileName);

public Q_SLOTS:
    void statuscheck();
    void separateAction();
    void clear_separatorController();

private:
    void list(const std::vector<std::string>& names, bool isCancelled);
    void makePlan();
    void mark(std::size_t place, const SeparatedRow& row);
    void conclude(const SeparationCounts& counts);
    static QString leftUndone(const SeparationCounts& counts, std::size_t all);

    SeparationPage& m_page;
    Workbench& m_workbench;
    QStringList m_failures;
    std::stop_source m_planStop; ///< of the newest one, which alone is shown
    QThreadPool m_planPool; ///< ends first, while everything else still stands
};

} // namespace tessera
