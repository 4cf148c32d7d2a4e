#pragma once

#include "core/settingskeys.h"

#include <QObject>

#include <memory>

class QLineEdit;

namespace tessera {

class DefaultsController;
class Desktop;
class UtilityWindow;
struct ConvertedList;

/// The commands of the utility window.
class UtilityObject : public QObject
{
    Q_OBJECT

public:
    UtilityObject(Desktop& desktop, DefaultsController& defaults, QObject* parent = nullptr);
    ~UtilityObject() override;

    UtilityWindow& utilityWindow() { return *m_window; }

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
    void inform(const QString& text);
    void refuse(const QString& text);
    void select(QLineEdit& field, const ChosenKey& key);
    QString pathOf(int tag) const;
    void save(const ConvertedList& list);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    std::unique_ptr<UtilityWindow> m_window;
};

} // namespace tessera
