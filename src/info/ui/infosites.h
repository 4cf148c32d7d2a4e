#pragma once

#include "core/sitehost.h"

#include <QObject>
#include <QPointer>

namespace tessera {

class DefaultsController;
class Desktop;
class InfoPage;

/// The commands on information sites. The page with their controls is made when it is first shown; until then
/// the settings stand for them.
class InfoSites : public QObject
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
    void infositeAction();
    /// Opens the address in the URL field, where it is one of the web as well.
    void openURL();

Q_SIGNALS:
    void statusMessage(const QString& text);

private:
    SettingReader settingReader() const;
    bool isOwnSite() const;
    void showTemplate();
    void storeHost(const QString& host);
    void storeTemplate(const QString& text);
    void settingChanged(const QString& name);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    QPointer<InfoPage> m_page;
    QString m_template;
};

} // namespace tessera
