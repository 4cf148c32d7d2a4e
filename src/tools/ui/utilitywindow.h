#pragma once

#include <QWidget>

class QListWidget;
class QStackedWidget;

namespace tessera {

class ConversionPage;
class DefaultsController;
class ExistencePage;
class FavouritesPage;
class ScriptPage;
class SeparationPage;
class ToolPage;
class UtilityFoot;
class VerificationPage;

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
    ExistencePage* existencePage;
    SeparationPage* separationPage;
    VerificationPage* verificationPage;
    FavouritesPage* favouritesPage;
    ScriptPage* scriptPage;
    UtilityFoot* foot;

Q_SIGNALS:
    /// It closes, unless whoever hears it ignores the event.
    void closing(QCloseEvent* event);

protected:
    void closeEvent(QCloseEvent* event) override { Q_EMIT closing(event); }

private:
    void addPage(ToolPage* page, const QString& title);
};

} // namespace tessera
