#include "app/windows/helpwindow.h"

#include "catalogue/search/searchkeys.h"
#include "core/texts.h"
#include "platform/defaultscontroller.h"
#include "widgets/bar.h"
#include "widgets/boundcontrols.h"
#include "widgets/closekeys.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

#include <array>

namespace tessera {

namespace {

constexpr QSize usualSize(780, 640);
constexpr qreal pageMargin = 24;

struct GuidePage {
    const char* title;
    const char* text;
};

// The position is stored: new pages are appended.
// clang-format off
constexpr std::array guide{
    GuidePage{textKey("help_start_title"),     textKey("help_start")},
    GuidePage{textKey("help_search_title"),    textKey("help_search")},
    GuidePage{textKey("help_launch_title"),    textKey("help_launch")},
    GuidePage{textKey("help_tools_title"),     textKey("help_tools")},
    GuidePage{textKey("help_favorites_title"), textKey("help_favorites")},
    GuidePage{textKey("help_pictures_title"),  textKey("help_pictures")},
};
// clang-format on

QString heading(const QString& title)
{
    return QStringLiteral("<h2>") + title.toHtmlEscaped() + QStringLiteral("</h2>");
}

QString row(const QString& left, const QString& right)
{
    return QStringLiteral("<tr><td style=\"padding: 3px 28px 3px 0\"><b>") + left.toHtmlEscaped()
        + QStringLiteral("</b></td><td style=\"padding: 3px 0\">") + right.toHtmlEscaped()
        + QStringLiteral("</td></tr>");
}

QString table(const QString& rows)
{
    return QStringLiteral("<table cellspacing=\"0\">") + rows + QStringLiteral("</table>");
}

// The program's own keys with their values; the sentences are those of the search field.
QString searchTerms()
{
    QString rows;
    for (const SearchKey& key : searchKeys)
        rows += row(QString::fromLatin1(key.name.data(), static_cast<qsizetype>(key.name.size())) + u':',
                    qtTrId(key.help));
    return heading(qtTrId("help_terms_title")) + qtTrId("help_terms_before") + table(rows)
        + qtTrId("help_terms_after");
}

QString plainTitle(const QString& title)
{
    QString plain;
    for (qsizetype i = 0; i < title.size(); ++i) {
        if (title[i] == u'&' && i + 1 < title.size())
            ++i;
        // A Japanese title has its mnemonic behind it, in brackets.
        if (title[i] == u'(' && i + 3 < title.size() && title[i + 1] == u'&' && title[i + 3] == u')')
            i += 3;
        else
            plain += title[i];
    }
    return plain;
}

QString menuKeys(const QMenuBar& menus)
{
    QString text;
    for (const QAction* entry : menus.actions()) {
        if (entry->menu() == nullptr)
            continue;
        QString rows;
        for (const QAction* action : entry->menu()->actions()) {
            if (!action->shortcut().isEmpty())
                rows
                    += row(action->shortcut().toString(QKeySequence::NativeText), plainTitle(action->text()));
        }
        if (!rows.isEmpty())
            text += heading(plainTitle(entry->text())) + table(rows);
    }
    return text;
}

} // namespace

HelpWindow::HelpWindow(DefaultsController& defaults, const QMenuBar& menus, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , helpPopmenu(new QComboBox)
    , helpTabview(new QTabWidget)
    , m_guide(makePage("helpGuide", qtTrId("help_guide")))
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(qtTrId("help_title"));
    helpTabview->setObjectName(QStringLiteral("helpTabview"));
    helpTabview->setDocumentMode(true);
    helpTabview->tabBar()->setDrawBase(false);
    QTextBrowser* terms = makePage("helpTerms", qtTrId("help_terms_title"));
    terms->setHtml(searchTerms());
    QTextBrowser* keys = makePage("helpKeys", qtTrId("help_keys"));
    keys->setHtml(menuKeys(menus) + qtTrId("help_keys_list"));
    helpTabview->addTab(makeGuide(defaults), qtTrId("help_guide"));
    helpTabview->addTab(terms, qtTrId("help_terms_title"));
    helpTabview->addTab(keys, qtTrId("help_keys"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(helpTabview);
    helpTabview->setCurrentIndex(defaults.index(keys::helpTabview));
    connect(helpTabview, &QTabWidget::currentChanged, this,
            [&defaults](int index) { defaults.setIndex(keys::helpTabview, index); });
    closeByKeyboard(*this);
    resize(usualSize);
}

QWidget* HelpWindow::makeGuide(DefaultsController& defaults)
{
    helpPopmenu->setObjectName(QStringLiteral("helpPopmenu"));
    helpPopmenu->setAccessibleName(qtTrId("help_subject"));
    for (const GuidePage& page : guide)
        helpPopmenu->addItem(qtTrId(page.title));
    connect(helpPopmenu, &QComboBox::currentIndexChanged, this, &HelpWindow::showGuide);
    bind(*helpPopmenu, defaults, keys::helpPopmenu);
    showGuide(helpPopmenu->currentIndex());

    auto* head = new Bar(Bar::Place::Top);
    QHBoxLayout* row = head->row();
    auto* label = new QLabel(qtTrId("help_subject"));
    label->setProperty("role", QStringLiteral("dim"));
    label->setBuddy(helpPopmenu);
    row->addWidget(label);
    row->addWidget(helpPopmenu);
    row->addStretch();

    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(head);
    layout->addWidget(m_guide, 1);
    return page;
}

QTextBrowser* HelpWindow::makePage(const char* objectName, const QString& name)
{
    auto* page = new QTextBrowser;
    page->setObjectName(QLatin1String(objectName));
    page->setAccessibleName(name);
    page->setProperty("role", QStringLiteral("page"));
    page->setOpenLinks(false);
    page->document()->setDocumentMargin(pageMargin);
    page->document()->setDefaultStyleSheet(
        QStringLiteral("p, li { line-height: 140%; } h2 { margin-top: 16px; }"));
    return page;
}

void HelpWindow::showGuide(int page)
{
    // A stored position that no page has shows the first.
    const auto index = static_cast<std::size_t>(page);
    const GuidePage& shown = guide[page >= 0 && index < guide.size() ? index : 0];
    m_guide->setHtml(heading(qtTrId(shown.title)) + qtTrId(shown.text));
}

} // namespace tessera
