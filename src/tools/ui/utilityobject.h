#pragma once

#include <QObject>

#include <memory>

namespace tessera {

class DefaultsController;
class Desktop;
class ExistenceTool;
class SeparationTool;
class UtilityWindow;
class VerificationTool;
class Workbench;
struct ConvertedList;

/// The commands of the utility window as a whole, and of its first page; the other pages have tools of their
/// own.
class UtilityObject : public QObject
{
    Q_OBJECT

public:
    UtilityObject(Desktop& desktop, DefaultsController& defaults, QObject* parent = nullptr);
    ~UtilityObject() override;

    UtilityWindow& utilityWindow() { return *m_window; }
    Workbench& workbench() { return *m_workbench; }
    ExistenceTool& existence() { return *m_existence; }
    SeparationTool& separation() { return *m_separation; }
    VerificationTool& verification() { return *m_verification; }

    /// A new one in its standard form.
    QString issueuuid() const;
    /// The chosen path; empty after Cancel.
    QString openPanelpath(bool chooseFile, bool chooseDirect);

public Q_SLOTS:
    void xmloutputAction();
    void outputAction();

    void selectlistxml();
    void selectlocalize();
    void show_file_in_finder2(int tag);

    void utilityOrderFront();
    void windowWillClose();
    void indicator_start();
    void indicator_stop();

Q_SIGNALS:
    void statusMessage(const QString& text);

private:
    void connectReveals();
    QString pathOf(int tag) const;
    void save(const ConvertedList& list);

    Desktop& m_desktop;
    std::unique_ptr<UtilityWindow> m_window;
    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<ExistenceTool> m_existence;
    std::unique_ptr<SeparationTool> m_separation;
    std::unique_ptr<VerificationTool> m_verification;
};

} // namespace tessera
