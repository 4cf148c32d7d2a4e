#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace tessera {

class ConversionPage;
class DefaultsController;

/// The window of the catalogue tools: a page for each, one information line and one progress indicator for
/// all.
class UtilityWindow : public QWidget
{
    Q_OBJECT

public:
    explicit UtilityWindow(DefaultsController& defaults, QWidget* parent = nullptr);

    QListWidget* pageList;
    QStackedWidget* utilityTabView;
    ConversionPage* conversionPage;
    QLabel* infoTextField;
    QProgressBar* progressInd;
    QPushButton* button_convert;

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addPage(QWidget* page, const QString& title);
    QWidget* makeFoot();
};

} // namespace tessera
