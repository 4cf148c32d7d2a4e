#include "tools/ui/toolpage.h"

#include "widgets/boundcontrols.h"
#include "widgets/named.h"
#include "widgets/pathfield.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {
constexpr int textMargin = 8;
} // namespace

QLineEdit* ToolPage::addPath(const ToolPath& path)
{
    const QString label = qtTrId(path.label);
    auto* row = new PathField(withoutMnemonic(label), qtTrId("tool_choose"), qtTrId("tool_reveal"), this);
    QLineEdit* field = named(path.field, row->field());
    row->chooseButton()->setObjectName(QStringLiteral("button_") + QLatin1StringView(path.name));
    row->revealButton()->setObjectName(QStringLiteral("reveal_") + QLatin1StringView(path.name));
    addRow(label, row);
    connect(row->chooseButton(), &QPushButton::clicked, this,
            [this, field, &path] { Q_EMIT pathWanted(*field, path); });
    connect(row->revealButton(), &QToolButton::clicked, this,
            [this, field] { Q_EMIT revealWanted(field->text()); });
    return field;
}

QLineEdit* ToolPage::addPath(const ToolPath& path, DefaultsController& defaults)
{
    QLineEdit* field = addPath(path);
    bind(*field, defaults, path.key);
    return field;
}

QPushButton* ToolPage::makeButton(const char* name, const QString& text)
{
    return named(name, new QPushButton(text, this));
}

QPushButton* ToolPage::makeFootButton(const char* name, const QString& text)
{
    m_footButtons << makeButton(name, text);
    return m_footButtons.last();
}

QPlainTextEdit* ToolPage::makeText(const char* name, const QString& accessibleName)
{
    auto* text = named(name, new QPlainTextEdit(this), accessibleName);
    text->setReadOnly(true);
    text->document()->setDocumentMargin(textMargin);
    text->setTabChangesFocus(true);
    return text;
}

} // namespace tessera
