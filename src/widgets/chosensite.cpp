#include "widgets/chosensite.h"

#include "platform/defaultscontroller.h"

#include <QLineEdit>

namespace tessera {

namespace {

// The cursor stays where the user types.
void showText(QLineEdit& field, const QString& text)
{
    if (field.text() != text)
        field.setText(text);
}

} // namespace

ChosenSite::ChosenSite(const SiteTable& table, DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_table(table)
    , m_defaults(defaults)
{
    connect(&defaults, &DefaultsController::changed, this, &ChosenSite::takeTemplates);
    takeTemplates();
}

void ChosenSite::setFields(QLineEdit& hostField, const QList<QLineEdit*>& templateFields)
{
    m_hostField = &hostField;
    m_templateFields = templateFields;
    connect(&hostField, &QLineEdit::textEdited, this, &ChosenSite::storeHost);
    for (std::size_t kind = 0; QLineEdit * field : templateFields)
        connect(field, &QLineEdit::textEdited, this,
                [this, key = m_table.ownTemplates[kind++]](const QString& text) {
                    m_defaults.setText(key, text);
                });
    showFields();
}

int ChosenSite::position() const
{
    return m_defaults.index(*m_table.chosen);
}

std::optional<int> ChosenSite::siteWithoutHost() const
{
    return tessera::siteWithoutHost(m_table, position(), m_defaults);
}

void ChosenSite::takeTemplates()
{
    if (const auto templates = templatesAt(m_table, position(), m_defaults))
        m_templates = *templates;
    showFields();
}

// Only the user's own templates can be typed, and only the other sites have a host.
void ChosenSite::showFields()
{
    if (!m_hostField)
        return;
    for (int kind = 0; QLineEdit * field : std::as_const(m_templateFields)) {
        field->setEnabled(position() == m_table.own);
        showText(*field, templateOf(kind++));
    }
    const WebSite* site = m_table.siteAt(position());
    m_hostField->setEnabled(site != nullptr);
    const QString host = site != nullptr ? hostText(site->host, m_defaults) : QString();
    if (m_hostField->text().trimmed() != host)
        m_hostField->setText(host);
}

void ChosenSite::storeHost(const QString& host)
{
    const WebSite* site = m_table.siteAt(position());
    if (site == nullptr)
        return;
    m_defaults.setText(*site->host.key, host);
    // Else what is cleared would come back.
    if (site->host.former != nullptr && !m_defaults.text(*site->host.former).isEmpty())
        m_defaults.setText(*site->host.former, QString());
}

} // namespace tessera
