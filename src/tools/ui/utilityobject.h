#pragma once

#include <QObject>

#include <memory>

class QCloseEvent;

namespace tessera {

class ConversionTool;
class DefaultsController;
class Desktop;
class ExistenceTool;
class FavouritesTool;
class ScriptTool;
class SeparationTool;
class UtilityWindow;
class VerificationTool;
class Workbench;
class UtilityHost;

/// The commands of the utility window as a whole; its pages have tools of their own.
class UtilityObject : public QObject
{
    Q_OBJECT

public:
    UtilityObject(Desktop& desktop, DefaultsController& defaults, UtilityHost& host,
                  QObject* parent = nullptr);
    ~UtilityObject() override;

    UtilityWindow& utilityWindow() { return *m_window; }
    Workbench& workbench() { return *m_workbench; }
    ExistenceTool& existence() { return *m_existence; }
    SeparationTool& separation() { return *m_separation; }
    VerificationTool& verification() { return *m_verification; }
    FavouritesTool& favourites() { return *m_favourites; }

    /// A new one in its standard form.
    QString issueuuid() const;

public Q_SLOTS:
    void show_file_in_finder2(int tag);
    void utilityOrderFront();
    void windowWillClose();

Q_SIGNALS:
    void statusMessage(const QString& text);
    /// What was said last is out of date.
    void statusWithdrawn(const QString& text);

private:
    void close(QCloseEvent* event);
    void reveal(const QString& path);
    void takeFocusRings();

    Desktop& m_desktop;
    std::unique_ptr<UtilityWindow> m_window;
    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<ConversionTool> m_conversion;
    std::unique_ptr<ExistenceTool> m_existence;
    std::unique_ptr<SeparationTool> m_separation;
    std::unique_ptr<VerificationTool> m_verification;
    std::unique_ptr<FavouritesTool> m_favourites;
    std::unique_ptr<ScriptTool> m_scripts;
};

} // namespace tessera
