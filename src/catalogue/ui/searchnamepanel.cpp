#include "catalogue/ui/searchnamepanel.h"

#include "core/message.h"
#include "widgets/named.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tessera {

namespace {

constexpr int mostLetters = 100;
constexpr int leastWidth = 380;

QLabel* plainLabel(const char* role, const QString& text = QString())
{
    auto* label = withRole(role, new QLabel(text));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QString shortened(const QString& query)
{
    return query.size() > mostLetters ? QString(query.left(mostLetters) + u'…') : query;
}

} // namespace

SearchNamePanel::SearchNamePanel(Purpose purpose, const KeptSearch& search, std::vector<KeptSearch> others,
                                 QWidget* parent)
    : QDialog(parent)
    , nameField(named("searchNameField", new QLineEdit, qtTrId("searchname_field")))
    , cancelButton(named("searchNameCancelButton", new QPushButton(qtTrId("searchname_cancel"))))
    , acceptButton(named("searchNameButton", new QPushButton))
    , m_purpose(purpose)
    , m_others(std::move(others))
    , m_notice(named("searchNameNotice", plainLabel("notice")))
{
    setObjectName(QStringLiteral("searchNamePanel"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(qtTrId(purpose == Purpose::Keep ? textKey("searchname_keep_title")
                                                   : textKey("searchname_rename_title")));
    nameField->setMaxLength(mostLetters);
    nameField->setText(search.name);
    nameField->selectAll();
    withRole("accent", acceptButton)->setDefault(true);
    cancelButton->setAutoDefault(false);

    auto* label = new QLabel(qtTrId("searchname_field"));
    label->setBuddy(nameField);
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(cancelButton);
    foot->addWidget(acceptButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(10);
    layout->addWidget(label);
    layout->addWidget(nameField);
    layout->addWidget(plainLabel("dim", qtTrId("searchname_query").arg(shortened(search.query))));
    layout->addWidget(m_notice);
    layout->addStretch();
    layout->addLayout(foot);
    setMinimumWidth(leastWidth);

    connect(nameField, &QLineEdit::textChanged, this, &SearchNamePanel::judgeName);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(acceptButton, &QPushButton::clicked, this, [this] {
        Q_EMIT nameChosen(name());
        accept();
    });
    judgeName();
}

QString SearchNamePanel::name() const
{
    return nameField->text().simplified();
}

void SearchNamePanel::judgeName()
{
    const auto other = std::ranges::find(m_others, name(), &KeptSearch::name);
    const bool isTaken = other != m_others.end();
    const bool renames = m_purpose == Purpose::Rename;
    m_notice->setText(!isTaken ? QString()
                          : renames
                          ? qtTrId("searchname_taken").arg(other->name)
                          : qtTrId("searchname_replaces").arg(other->name, shortened(other->query)));
    m_notice->setVisible(isTaken);
    acceptButton->setText(qtTrId(renames       ? textKey("searchname_rename")
                                     : isTaken ? textKey("searchname_replace")
                                               : textKey("searchname_keep")));
    acceptButton->setEnabled(!name().isEmpty() && !(renames && isTaken));
}

} // namespace tessera
