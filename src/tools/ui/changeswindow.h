#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace tessera {

struct CatalogueComparison;

/// Machine by machine what differs between the catalogue and the one before.
class ChangesWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ChangesWindow(QWidget* parent = nullptr);

    void show(const CatalogueComparison& comparison);

    QLabel* summary;
    QPlainTextEdit* changes;
};

} // namespace tessera
