#include "info/ui/historywindow.h"

#include "widgets/logview.h"
#include "widgets/bar.h"
#include "widgets/closekeys.h"
#include "widgets/named.h"
#include "widgets/theme.h"
#include "widgets/plaintooltip.h"
#include "widgets/toolbutton.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr QSize firstSize(720, 620);
constexpr int nameWidth = 170;
constexpr int findWidth = 150;

QLineEdit* searchField(const char* name, const QString& says, int width)
{
    auto* field = named(name, new QLineEdit, says);
    field->setPlaceholderText(says);
    field->setClearButtonEnabled(true);
    field->addAction(theme::icon(QStringLiteral("search"), "faint"), QLineEdit::LeadingPosition);
    field->setFixedWidth(width);
    return field;
}

// Names and paths come from files.
QLabel* plainLabel(const char* role)
{
    auto* label = withRole(role, new QLabel);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* link(const char* name, const QString& text)
{
    return named(name, withRole("link", new QPushButton(text)));
}

QString escaped(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

HistoryWindow::HistoryWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , historyinfoTextView(named("historyinfoTextView", new LogView(this), qtTrId("history_title")))
{
    setObjectName(QStringLiteral("historyWindow"));
    setWindowTitle(qtTrId("history_title"));
    withRole("reading", historyinfoTextView);

    auto* layout = edgeToEdge<QVBoxLayout>(this, 0);
    layout->addWidget(makeToolRow());
    layout->addWidget(historyinfoTextView, 1);
    layout->addWidget(makeFoot());
    closeByKeyboard(*this);
    resize(firstSize);
}

QWidget* HistoryWindow::makeToolRow()
{
    auto* row = new Bar(Bar::Place::Top);
    historySearchField = searchField("historySearchField", qtTrId("history_set"), nameWidth);
    m_parentName = plainLabel("faint");
    m_parentName->setText(qtTrId("history_parent"));
    parentTextField = named("parentTextField", plainLabel("dim"));
    filedButton = link("filedButton", QString());
    findField = searchField("findField", qtTrId("history_find"), findWidth);
    findCount = named("findCount", plainLabel("faint"));
    smallerButton = toolButton(QStringLiteral("smaller"), qtTrId("history_smaller"));
    biggerButton = toolButton(QStringLiteral("bigger"), qtTrId("history_bigger"));

    QHBoxLayout* layout = row->row();
    layout->addWidget(historySearchField);
    layout->addWidget(m_parentName);
    layout->addWidget(parentTextField);
    layout->addWidget(filedButton);
    layout->addStretch(1);
    layout->addWidget(findCount);
    layout->addWidget(findField);
    layout->addWidget(smallerButton);
    layout->addWidget(biggerButton);
    showParent(QString());
    showFiled(QString());
    return row;
}

QWidget* HistoryWindow::makeFoot()
{
    auto* foot = new Bar(Bar::Place::Foot);
    historyButton = link("historyButton", qtTrId("history_choose"));
    mameinfoButton = link("mameinfoButton", qtTrId("mameinfo_choose"));
    followBox = named("followBox", new QCheckBox(qtTrId("history_follow")));
    QHBoxLayout* layout = foot->row();
    layout->addWidget(historyButton);
    layout->addWidget(mameinfoButton);
    layout->addStretch(1);
    layout->addWidget(followBox);
    return foot;
}

void HistoryWindow::showParent(const QString& parent)
{
    parentTextField->setText(parent);
    m_parentName->setVisible(!parent.isEmpty());
    parentTextField->setVisible(!parent.isEmpty());
}

void HistoryWindow::showFiled(const QString& name)
{
    filedButton->setText(qtTrId("history_filed_under").arg(escaped(name)));
    filedButton->setVisible(!name.isEmpty());
}

void HistoryWindow::setFontSize(int size)
{
    QFont font = historyinfoTextView->font();
    font.setPixelSize(size);
    historyinfoTextView->setFont(font);
}

void HistoryWindow::showLoading(bool loading)
{
    historyinfoTextView->setPlaceholderText(loading ? qtTrId("history_loading") : QString());
}

void HistoryWindow::showPaths(const QString& history, const QString& mameinfo)
{
    historyButton->setToolTip(plainToolTip(history));
    mameinfoButton->setToolTip(plainToolTip(mameinfo));
}

} // namespace tessera
