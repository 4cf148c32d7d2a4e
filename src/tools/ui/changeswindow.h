#pragma once

#include "tools/cataloguecomparison.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTabBar;

namespace tessera {

class RowsList;
class RowsModel;

/// Machine by machine what differs between the catalogue and the one before, a tab for each kind of change.
class ChangesWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ChangesWindow(QWidget* parent = nullptr);

    void show(const CatalogueComparison& comparison);

    QLabel* summary;
    QTabBar* kinds;
    QLineEdit* filterField;
    RowsModel* rows;
    RowsList* changes;

Q_SIGNALS:
    /// A machine is to be shown in the game list.
    void opened(const QString& name);

private:
    void addTab(const char* key, int kind, std::size_t count);
    void showKind();

    CatalogueComparison m_comparison;
};

} // namespace tessera
