#pragma once

#include "widgets/chosensite.h"

namespace tessera {

class Desktop;
class InfoPage;

/// The commands on information sites.
class InfoSites : public ChosenSite
{
    Q_OBJECT

public:
    InfoSites(Desktop& desktop, DefaultsController& defaults, QObject* parent = nullptr);

    /// A new page, for a window to take over.
    InfoPage* makePage();
    /// Opens the chosen site's page for a set in the web browser; beeps where there is none. Only the web is
    /// opened so, by http or https: a template is text that comes from anywhere.
    void openROMinfo(const QString& name);

public Q_SLOTS:
    /// Takes the template of the chosen site.
    void infositeAction() { takeTemplates(); }
    /// Opens the address in the URL field, where it is one of the web as well.
    void openURL();

Q_SIGNALS:
    void statusMessage(const QString& text);

private:
    Desktop& m_desktop;
    DefaultsController& m_defaults;
    QPointer<InfoPage> m_page;
};

} // namespace tessera
