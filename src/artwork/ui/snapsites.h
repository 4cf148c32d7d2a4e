#pragma once

#include "artwork/picturesites.h"

#include <QObject>
#include <QPointer>

namespace tessera {

class DefaultsController;
class PicturesPage;

/// Where pictures are fetched from. The page with the controls is made when it is first shown; until then the
/// settings stand for them.
class SnapSites : public QObject
{
    Q_OBJECT

public:
    explicit SnapSites(DefaultsController& defaults, QObject* parent = nullptr);

    /// Its controls on sites follow this from now on.
    void setPage(PicturesPage& page);
    /// The template of a kind, by its position; empty for one that there is not.
    QString templateOf(int kind) const;
    /// The number of the chosen site where that has no host, and so nothing to ask for a picture.
    std::optional<int> siteWithoutHost() const;

public Q_SLOTS:
    /// Takes the templates of the chosen site.
    void snapdownsiteAction();

private:
    SettingReader settingReader() const;
    bool isOwnSite() const;
    void showTemplates();
    void storeHost(const QString& host);
    void storeTemplate(int kind, const QString& text);
    void settingChanged(const QString& name);

    DefaultsController& m_defaults;
    QPointer<PicturesPage> m_page;
    PictureTemplates m_templates;
};

} // namespace tessera
