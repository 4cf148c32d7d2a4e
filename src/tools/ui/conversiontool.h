#pragma once

#include "tools/listxmlconverter.h"
#include "tools/ui/utilityhost.h"

#include <QObject>

namespace tessera {

class ConversionPage;
class Workbench;

/// The commands of the catalogue conversion.
class ConversionTool : public QObject
{
    Q_OBJECT

public:
    ConversionTool(ConversionPage& page, Workbench& workbench, UtilityHost& host, QObject* parent = nullptr);

public Q_SLOTS:
    void xmloutputAction();
    /// Without looking whether the files are there.
    void outputAction();
    /// What was saved last takes the catalogue's place.
    void useAsCatalogue();

private:
    void offer(ConvertedList list);
    void save(const QString& path, ConvertedList list);
    void conclude(const std::expected<void, Failure>& written, const QString& report);

    ConversionPage& m_page;
    Workbench& m_workbench;
    UtilityHost& m_host;
    QString m_saved;
};

} // namespace tessera
