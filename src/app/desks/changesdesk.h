#pragma once

#include "tools/cataloguecomparison.h"

#include <QObject>

#include <memory>

namespace tessera {

class ChangesWindow;
class MainWindow;

/// What differs between the catalogue and the one that it replaced, offered in the status line.
class ChangesDesk : public QObject
{
    Q_OBJECT

public:
    explicit ChangesDesk(MainWindow& window, QObject* parent = nullptr);
    ~ChangesDesk() override;

    /// Made when it is asked for first.
    ChangesWindow& window();

public Q_SLOTS:
    void takeComparison(const tessera::CatalogueComparison& comparison);
    void showChanges();

Q_SIGNALS:
    /// A machine is to be shown in the game list.
    void opened(const QString& name);

private:
    MainWindow& m_mainWindow;
    CatalogueComparison m_comparison;
    std::unique_ptr<ChangesWindow> m_window;
};

} // namespace tessera
