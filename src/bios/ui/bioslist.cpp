#include "bios/ui/bioslist.h"

#include "catalogue/gameselection.h"
#include "bios/biosquestion.h"
#include "bios/ui/biosediting.h"
#include "bios/ui/biosmodel.h"
#include "bios/ui/biospanel.h"
#include "launch/emulatorchoice.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/bringforward.h"
#include "widgets/theme.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QTreeView>

namespace tessera {

namespace {

const QString shippedFile = QStringLiteral(":/bioslist.xml");
constexpr int iconSize = 32;

// What the panel says; the same in every language.
constexpr QLatin1StringView exists("This file exist");
constexpr QLatin1StringView missing("This file does not exist");
constexpr std::array<QLatin1StringView, fixedRows> fixedTexts{QLatin1StringView("Bios is blank"),
                                                              QLatin1StringView("Use the default BIOS")};
constexpr QLatin1StringView changed("Changed the BIOS setting to \"%1\"");

} // namespace

Bioslist::Bioslist(const BiosParts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_popup_bios(parts.defaults)
    , m_editing(std::make_unique<BiosEditing>(parts.panel, parts.undo))
    , m_file(parts.ownFile)
{
    BiosPanel& panel = m_parts.panel;
    connect(panel.biosView, &QTreeView::doubleClicked, this, &Bioslist::tableViewDoubleAction);
    // Not the view's activation: on some desktops that is a single click.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, panel.biosView, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, &Bioslist::tableViewDoubleAction);
    }
    connect(panel.biosView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Bioslist::outlineViewSelectionDidChange);
    connect(m_editing.get(), &BiosEditing::edited, this, &Bioslist::takeEdit);
    connect(panel.treeController_list, &BiosModel::dataChanged, this,
            &Bioslist::outlineViewSelectionDidChange);
    connect(panel.treeController_list, &BiosModel::modelReset, this,
            &Bioslist::outlineViewSelectionDidChange);
    connect(panel.addButton, &QToolButton::clicked, this, &Bioslist::addEntry);
    connect(panel.removeButton, &QToolButton::clicked, this, &Bioslist::removeEntry);
    connect(panel.gameButton, &QPushButton::clicked, this, &Bioslist::addOfGame);
    connect(panel.rebuildButton, &QPushButton::clicked, this, &Bioslist::rebuild);
    connect(&m_parts.defaults, &DefaultsController::changed, this, [this](const QString& setting) {
        if (BiosPopup::isChangedBy(setting))
            showSetting();
    });
    showSetting();
}

Bioslist::~Bioslist() = default;

QString Bioslist::pathOfDataFile() const
{
    return m_file.exists() ? m_file.path() : shippedFile;
}

void Bioslist::awakeFromNib()
{
    if (!QFileInfo::exists(pathOfDataFile())) {
        m_parts.desktop.log(QStringLiteral("bioslist.xml not found"));
    } else if (const auto entries
               = m_file.exists() ? m_file.read(&readBiosEntries) : readBiosEntries(shippedFile)) {
        m_editing->load(*entries);
        learn();
    } else {
        m_parts.desktop.log(entries.error().text());
    }
    outlineViewSelectionDidChange();
}

// A BIOS that stands in the list can be set: what the pop-up lacks goes behind its items, where it stays
// when it is removed here.
void Bioslist::learn()
{
    m_popup_bios.learn(biosNames(m_parts.panel.treeController_list->entries()));
}

void Bioslist::takeEdit()
{
    learn();
    saveAction();
}

void Bioslist::showSetting()
{
    const PopupState set = m_popup_bios.selected();
    m_parts.panel.treeController_list->setChosen(set.index == 0 ? QString(defaultBios) : set.title);
    m_parts.panel.showSetting(m_popup_bios.text());
}

QModelIndex Bioslist::selected() const
{
    return m_parts.panel.biosView->selectionModel()->selectedRows().value(0);
}

void Bioslist::ViewBiosList()
{
    toggle(m_parts.panel);
}

void Bioslist::showIcon(const QIcon& icon)
{
    m_parts.panel.image_icon->setPixmap(
        icon.pixmap(QSize(iconSize, iconSize), m_parts.panel.devicePixelRatioF()));
}

// The platform's own, where it has one.
QIcon Bioslist::iconOf(const BiosEntry& entry) const
{
    const QString archive = m_parts.defaults.text(keys::RomsPath) + u'/' + entry.rom + QStringLiteral(".zip");
    const QIcon icon = QFileIconProvider().icon(QFileInfo(archive));
    return icon.isNull() ? theme::icon(QStringLiteral("romfile")) : icon;
}

void Bioslist::outlineViewSelectionDidChange()
{
    const BiosModel& list = *m_parts.panel.treeController_list;
    const QModelIndex current = selected();
    const auto entry = list.entry(current);
    const auto fixed = list.fixedRow(current);
    QLabel& text = *m_parts.panel.text_infomation;
    m_parts.panel.removeButton->setEnabled(entry && !fixed && !isAsking());
    // What is said of the question stays until its answer.
    if (isAsking())
        return;
    if (entry && !fixed) {
        const bool isThere = hasArchive(m_parts.defaults.text(keys::RomsPath), entry->rom);
        showIcon(isThere ? iconOf(*entry) : theme::icon(QStringLiteral("no_romfile"), "faint"));
        text.setText(isThere ? exists : missing);
        return;
    }
    showIcon(theme::icon(QStringLiteral("romfile")));
    text.setText(fixed ? QString(fixedTexts[static_cast<std::size_t>(*fixed)]) : QString());
}

void Bioslist::tableViewDoubleAction()
{
    const auto entry = m_parts.panel.treeController_list->entry(selected());
    if (!entry)
        return;
    m_popup_bios.select(entry->bios);
    m_parts.desktop.playSound(QStringLiteral("Pop"));
    m_parts.panel.text_infomation->setText(QString(changed).arg(entry->bios));
}

void Bioslist::saveAction()
{
    const auto xml = biosEntriesXml(m_parts.panel.treeController_list->entries(), m_file.path());
    if (!xml)
        return m_parts.desktop.log(xml.error().text());
    QDir().mkpath(QFileInfo(m_file.path()).absolutePath());
    if (const auto written = m_file.write(*xml, m_parts.desktop.now()); !written)
        m_parts.desktop.log(written.error().text());
}

void Bioslist::addEntry()
{
    m_editing->addEntry();
}

void Bioslist::removeEntry()
{
    const QModelIndex row = selected();
    const QString name = row.siblingAtColumn(BiosModel::Name).data().toString();
    if (isAsking() || !m_editing->removeEntry())
        m_parts.desktop.beep();
    else
        m_parts.panel.text_infomation->setText(qtTrId("bios_removed").arg(name));
}

void Bioslist::rebuild()
{
    ask(QString());
}

void Bioslist::addOfGame()
{
    if (const QString game = m_parts.selection.selected().name; isSetName(game))
        ask(game);
    else
        m_parts.desktop.beep();
}

void Bioslist::ask(const QString& set)
{
    const QString emulator = m_parts.emulator.emulatorNow();
    if (isAsking() || emulator.isEmpty())
        return m_parts.desktop.beep();
    m_question = std::make_unique<BiosQuestion>(emulator, set);
    connect(m_question.get(), &BiosQuestion::answered, this, &Bioslist::takeAnswer);
    connect(m_question.get(), &BiosQuestion::failed, this, &Bioslist::fail);
    m_parts.panel.setAsking(true);
    outlineViewSelectionDidChange();
    m_parts.panel.text_infomation->setText(qtTrId("bios_asking"));
    m_question->ask();
}

// The user's own entries are kept, and what was known stays where it was.
void Bioslist::takeAnswer()
{
    const BiosEntries found = m_question->entries();
    m_question.release()->deleteLater();
    const BiosEntries known = m_parts.panel.treeController_list->entries();
    const BiosEntries merged = mergedBiosEntries(known, found);
    m_parts.panel.setAsking(false);
    m_editing->replace(merged, qtTrId("undo_extend_bios"));
    const auto sets = static_cast<int>(merged.size() - known.size());
    m_parts.panel.text_infomation->setText(
        found.empty() ? qtTrId("bios_none_found") : qtTrId("bios_added").arg(QLocale().toString(sets)));
    Q_EMIT asked();
}

void Bioslist::fail(const Failure& failure)
{
    m_question.release()->deleteLater();
    m_parts.panel.setAsking(false);
    outlineViewSelectionDidChange();
    m_parts.panel.text_infomation->setText(failure.text());
    m_parts.desktop.beep();
    Q_EMIT asked();
}

} // namespace tessera
