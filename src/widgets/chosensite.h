#pragma once

#include "platform/websites.h"

#include <QObject>
#include <QPointer>

class QLineEdit;

namespace tessera {

/// The web site that a pop-up of the preferences has chosen. The page with the controls is made when it is
/// first shown; until then the settings stand for them.
class ChosenSite : public QObject
{
    Q_OBJECT

public:
    /// What `table` names outlives this.
    ChosenSite(const SiteTable& table, DefaultsController& defaults, QObject* parent = nullptr);

    /// A template of the chosen site; empty for a kind that there is not.
    QString templateOf(int kind) const { return m_templates.value(kind); }
    /// The number of the chosen site where that has no host, and so no pages.
    std::optional<int> siteWithoutHost() const;

protected:
    /// The fields of one page show the chosen site from now on, and what is typed in them is stored. The
    /// templates' are in the order of kinds.
    void setFields(QLineEdit& hostField, const QList<QLineEdit*>& templateFields);
    /// Takes the templates of the chosen site.
    void takeTemplates();

private:
    int position() const;
    void showFields();
    void storeHost(const QString& host);

    SiteTable m_table;
    DefaultsController& m_defaults;
    QStringList m_templates;
    QPointer<QLineEdit> m_hostField;
    QList<QLineEdit*> m_templateFields; ///< there as long as that one
};

} // namespace tessera
