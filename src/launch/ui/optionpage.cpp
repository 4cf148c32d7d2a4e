#include "launch/ui/optionpage.h"

#include "launch/emulatorprofile.h"
#include "launch/ui/growingpopup.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/unknownoptions.h"
#include "widgets/boundcontrols.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <map>

namespace tessera {

namespace {

constexpr int popupWidth = 190;

// By page.
constexpr std::array identifiers{"general", "video", "effect", "av", "ioport", "misc"};

// The fields whose file can be chosen.
struct ChosenFile {
    const char* field;
    void (*choose)(PathChooser& chooser);
};
constexpr std::array chosenFiles{
    ChosenFile{"effectTextField", [](PathChooser& chooser) { chooser.selectEffectfile(); }},
    ChosenFile{"textfildPlayback", [](PathChooser& chooser) { chooser.selectPlaybackfile(); }},
    ChosenFile{"wavnameTextField", [](PathChooser& chooser) { chooser.saveRecordfile(1); }},
    ChosenFile{"mngnameTextField", [](PathChooser& chooser) { chooser.saveRecordfile(2); }},
    ChosenFile{"avinameTextField", [](PathChooser& chooser) { chooser.saveRecordfile(3); }},
};

// By their lines, which is the order that the Tab key goes; on one line in the table's.
std::multimap<int, const OptionRow*> rowsOn(Page page)
{
    std::multimap<int, const OptionRow*> rows;
    for (const OptionRow& row : optionRows()) {
        if (row.place.page == page && row.place.line > 0)
            rows.emplace(row.place.line, &row);
    }
    return rows;
}

template <class Control>
void tie(Control& control, DefaultsController& defaults, const OptionSetting& setting)
{
    const auto tieTo = [&](const auto* key) {
        if constexpr (requires { bind(control, defaults, *key); })
            bind(control, defaults, *key);
    };
    std::visit(tieTo, setting);
}

// What stands behind the buttons stands in a column.
void alignBehind(const QWidgetList& buttons)
{
    int width = 0;
    for (const QWidget* button : buttons)
        width = std::max(width, button->sizeHint().width());
    for (QWidget* button : buttons)
        button->setMinimumWidth(width);
}

QString firstOption(const OptionRow& row)
{
    return QString::fromLatin1(row.sdl.options).section(QLatin1Char(' '), 0, 0).remove(QLatin1Char('='));
}

/// Reads a control of a page.
struct Reader {
    const OptionPage& page;
    const OptionRow& row;
    LaunchOptions& options;

    template <class Control>
    const Control* shown() const
    {
        return page.findChild<Control*>(QLatin1StringView(row.name));
    }

    void operator()(int LaunchOptions::* state) const
    {
        if (const auto* box = shown<QCheckBox>())
            options.*state = box->checkState() == Qt::PartiallyChecked ? -1 : box->isChecked() ? 1 : 0;
        else if (const auto* popup = shown<QComboBox>())
            options.*state = popup->currentIndex();
        else if (const auto* buttons = shown<QButtonGroup>())
            options.*state = buttons->checkedId();
    }
    void operator()(PopupState LaunchOptions::* state) const
    {
        const auto* popup = shown<QComboBox>();
        const int index = popup->currentIndex();
        const auto& items = row.control.items;
        const bool isLabel = index >= 0 && index < std::ssize(items)
            && items[static_cast<std::size_t>(index)].title == nullptr;
        options.*state = {index, isLabel ? QString() : popup->currentText()};
    }
    void operator()(QString LaunchOptions::* text) const { options.*text = shown<QLineEdit>()->text(); }
};

} // namespace

OptionPage::OptionPage(Page page, DefaultsController& defaults, PathChooser& chooser, QWidget* parent)
    : FormPage(parent)
    , m_page(page)
    , m_defaults(defaults)
    , m_chooser(chooser)
{
    layOut();
}

QString OptionPage::identifier() const
{
    return QLatin1StringView(identifiers[static_cast<std::size_t>(m_page)]);
}

void OptionPage::layOut()
{
    struct Line {
        OptionPlace place;
        QWidgetList controls;
    };
    std::map<int, Line> lines;
    for (const auto& [number, row] : rowsOn(m_page)) {
        Line& line = lines[number];
        const QWidgetList made = make(*row);
        if (line.controls.isEmpty())
            line.place = row->place;
        if (row->control.buttons.empty())
            line.controls << made;
        for (int i = 0; i < std::ssize(row->control.buttons); ++i)
            lines[number + i].controls << made[i];
    }
    for (const auto& [number, line] : lines) {
        const QString label = line.place.label ? qtTrId(line.place.label) : QString();
        if (line.place.startsGroup)
            addLine();
        if (line.controls.size() == 1)
            addRow(label, line.controls.first());
        else
            addRow(label, line.controls);
    }
    if (!lines.empty())
        addStretch();
}

QWidgetList OptionPage::make(const OptionRow& row)
{
    if (!row.control.buttons.empty())
        return makeButtons(row);
    if (std::holds_alternative<QString LaunchOptions::*>(row.member))
        return makeField(row);
    if (row.control.items.empty()) {
        auto* box = new QCheckBox(qtTrId(row.control.text), this);
        box->setObjectName(QLatin1StringView(row.name));
        tie(*box, m_defaults, row.setting);
        return {box};
    }
    QComboBox* popup = makePopup(row.name, row.control.items);
    if (row.control.text)
        popup->setAccessibleName(qtTrId(row.control.text));
    if (row.control.growing)
        new GrowingPopup(*popup, m_defaults, *row.control.growing);
    tie(*popup, m_defaults, row.setting);
    return {popup};
}

QComboBox* OptionPage::makePopup(const char* name, std::span<const PopupItem> items)
{
    auto* popup = new QComboBox(this);
    popup->setObjectName(QLatin1StringView(name));
    popup->setMinimumWidth(popupWidth);
    popup->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    for (const PopupItem& item : items) {
        if (const QString text = item.shown(); !text.isEmpty())
            popup->addItem(text);
        else
            popup->insertSeparator(popup->count());
    }
    return popup;
}

// Their ids are their rows, which end their names, too.
QWidgetList OptionPage::makeButtons(const OptionRow& row)
{
    auto* group = new QButtonGroup(this);
    group->setObjectName(QLatin1StringView(row.name));
    QWidgetList buttons;
    for (const char* text : row.control.buttons) {
        const auto id = static_cast<int>(buttons.size());
        auto* button = new QRadioButton(qtTrId(text), this);
        button->setObjectName(QStringLiteral("%1_%2").arg(QLatin1StringView(row.name)).arg(id));
        group->addButton(button, id);
        buttons << button;
    }
    alignBehind(buttons);
    tie(*group, m_defaults, row.setting);
    return buttons;
}

QWidgetList OptionPage::makeField(const OptionRow& row)
{
    auto* field = new QLineEdit(this);
    field->setObjectName(QLatin1StringView(row.name));
    field->setMaximumWidth(popupWidth);
    if (row.control.text)
        field->setAccessibleName(qtTrId(row.control.text));
    tie(*field, m_defaults, row.setting);
    const auto chosen
        = std::ranges::find(chosenFiles, QLatin1StringView(row.name),
                            [](const ChosenFile& file) { return QLatin1StringView(file.field); });
    if (chosen == chosenFiles.end())
        return {field};
    auto* button = new QPushButton(qtTrId("path_choose"), this);
    button->setObjectName(field->objectName() + QStringLiteral("_choose"));
    button->setAccessibleName(button->text() + QStringLiteral(": ") + field->accessibleName());
    connect(button, &QPushButton::clicked, &m_chooser,
            [this, choose = chosen->choose] { choose(m_chooser); });
    m_chooser.putInto(*field, std::visit([](const auto* key) { return key->name; }, row.setting));
    return {field, button};
}

void OptionPage::read(LaunchOptions& options) const
{
    for (const OptionRow& row : optionRows()) {
        if (row.place.page == m_page)
            std::visit(Reader{*this, row, options}, row.member);
    }
}

void OptionPage::fitTo(const EmulatorProfile* profile)
{
    for (const OptionRow& row : optionRows()) {
        if (row.place.page != m_page)
            continue;
        markUnknownOptions(*this, row, profile);
        if (row.control.growing)
            control<QComboBox>(row.name).findChild<GrowingPopup*>()->offer(
                profile ? profile->valuesOf(firstOption(row)) : QStringList());
    }
}

} // namespace tessera
