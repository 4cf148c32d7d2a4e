#include "favourites/ui/favouriteeditor.h"

#include "core/failure.h"
#include "favourites/optionwords.h"
#include "widgets/bringforward.h"
#include "widgets/closekeys.h"

#include <QClipboard>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace tessera {

namespace {

struct FieldRow {
    FavouriteKey key;
    const char* name;
    const char* label;
};

// clang-format off
constexpr std::array fieldRows{
    FieldRow{FavouriteKey::Name,    "favouriteName",    textKey("column_name")},
    FieldRow{FavouriteKey::Title,   "favouriteTitle",   textKey("column_title")},
    FieldRow{FavouriteKey::Titlejp, "favouriteTitlejp", textKey("column_titlejp")},
    FieldRow{FavouriteKey::Year,    "favouriteYear",    textKey("column_year")},
    FieldRow{FavouriteKey::Maker,   "favouriteMaker",   textKey("column_maker")},
    FieldRow{FavouriteKey::Cloneof, "favouriteCloneof", textKey("column_cloneof")},
    FieldRow{FavouriteKey::Status,  "favouriteStatus",  textKey("column_status")},
    FieldRow{FavouriteKey::Type,    "favouriteType",    textKey("column_type")},
    FieldRow{FavouriteKey::Device,  "favouriteDevice",  textKey("column_device")},
    FieldRow{FavouriteKey::Option,  "favouriteOption",  textKey("column_option")},
};
// clang-format on
static_assert(fieldRows.size() == favouriteKeyCount);

QPushButton* button(const char* name, const char* textKey)
{
    auto* made = new QPushButton(qtTrId(textKey));
    made->setObjectName(QLatin1String(name));
    made->setAutoDefault(false);
    return made;
}

} // namespace

FavouriteEditor::FavouriteEditor(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , optionField(new OptionField)
    , optionWarning(new QLabel)
    , commandField(new QLineEdit)
    , copyButton(button("favouriteCopy", textKey("favourite_copy")))
    , removeButton(button("favouriteRemove", textKey("editor_remove")))
    , previousButton(button("favouritePrevious", textKey("editor_previous")))
    , nextButton(button("favouriteNext", textKey("editor_next")))
    , closeButton(button("favouriteClose", textKey("editor_close")))
    , m_heading(new QLabel)
    , m_form(new QFormLayout)
{
    setObjectName(QStringLiteral("favouriteEditor"));
    setWindowTitle(qtTrId("favourite_editor"));
    m_heading->setProperty("role", QStringLiteral("heading"));
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setWordWrap(true);
    m_form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_form->setHorizontalSpacing(12);
    m_form->setVerticalSpacing(8);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(14);
    layout->addWidget(m_heading);
    layout->addLayout(m_form);
    addFields();
    addCommand();
    layout->addStretch();
    addButtons(layout);
    resize(560, sizeHint().height());
    closeByKeyboard(*this);
}

// A field that goes away with its window loses the focus, and would be taken over by what is left of us.
FavouriteEditor::~FavouriteEditor()
{
    for (const Row& row : m_rows)
        row.edit->disconnect(this);
}

void FavouriteEditor::addFields()
{
    for (const FieldRow& each : fieldRows) {
        QLineEdit* edit = each.key == FavouriteKey::Option ? optionField : new QLineEdit;
        edit->setObjectName(QLatin1String(each.name));
        edit->setAccessibleName(qtTrId(each.label));
        m_form->addRow(qtTrId(each.label), edit);
        const std::size_t row = m_rows.size();
        m_rows.push_back({each.key, edit, QString()});
        connect(edit, &QLineEdit::editingFinished, this, [this, row] { take(m_rows[row]); });
    }
    optionField->setPlaceholderText(qtTrId("favourite_option_hint"));
    optionWarning->setObjectName(QStringLiteral("favouriteOptionWarning"));
    optionWarning->setProperty("role", QStringLiteral("notice"));
    optionWarning->setTextFormat(Qt::PlainText);
    optionWarning->setWordWrap(true);
    optionWarning->hide();
    m_form->addRow(QString(), optionWarning);
    connect(optionField, &QLineEdit::textChanged, this, &FavouriteEditor::judgeOptions);
}

void FavouriteEditor::addCommand()
{
    commandField->setObjectName(QStringLiteral("favouriteCommand"));
    commandField->setAccessibleName(qtTrId("favourite_command"));
    commandField->setReadOnly(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(commandField, 1);
    row->addWidget(copyButton);
    m_form->addRow(qtTrId("favourite_command"), row);
    connect(copyButton, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(commandField->text()); });
    showCommand(QString());
}

void FavouriteEditor::addButtons(QVBoxLayout* layout)
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(removeButton);
    buttons->addStretch();
    for (QPushButton* each : {previousButton, nextButton, closeButton})
        buttons->addWidget(each);
    layout->addLayout(buttons);
    connect(closeButton, &QPushButton::clicked, this, &QWidget::close);
}

QLineEdit* FavouriteEditor::field(FavouriteKey key) const
{
    return std::ranges::find(m_rows, key, &Row::key)->edit;
}

void FavouriteEditor::setKnownOptions(KnownOptions known)
{
    m_known = std::move(known);
    optionField->setKnownOptions(m_known.options);
    judgeOptions();
}

// An option that the emulator does not know is kept and sent all the same.
void FavouriteEditor::judgeOptions()
{
    QStringList sentences;
    const QString words = optionField->text();
    if (m_known.lists) {
        if (const QStringList unknown = unknownOptions(words, m_known.lists); !unknown.isEmpty())
            sentences << Failure{"favourite_option_unknown", {unknown.join(QStringLiteral(", "))}}.text();
    }
    if (!words.isEmpty() && words.split(QLatin1Char(' ')).contains(QString()))
        sentences << qtTrId("favourite_option_blank");
    optionWarning->setText(sentences.join(QLatin1Char('\n')));
    optionWarning->setVisible(!sentences.isEmpty());
}

void FavouriteEditor::take(Row& row)
{
    if (!m_favourite || !row.edit->isModified())
        return;
    row.edit->setModified(false);
    row.shown = row.edit->text();
    Q_EMIT edited(*m_favourite, row.key, row.shown);
}

void FavouriteEditor::commit()
{
    for (Row& row : m_rows)
        take(row);
}

// False where the index stands for another favourite now: some were removed, or all replaced.
bool FavouriteEditor::isStillShown(const Favourites& favourites) const
{
    return m_favourite && *m_favourite < favourites.records().size()
        && std::ranges::all_of(
               m_rows, [&](const Row& row) { return favourites.value(*m_favourite, row.key) == row.shown; });
}

void FavouriteEditor::show(std::optional<std::uint32_t> favourite, const Favourites& favourites)
{
    const bool isSame = favourite == m_favourite;
    if (!isSame && isStillShown(favourites))
        commit();
    m_favourite = favourite;
    for (Row& row : m_rows) {
        row.shown = favourite ? favourites.value(*favourite, row.key) : QString();
        if (!(isSame && row.edit->isModified()) && row.edit->text() != row.shown)
            row.edit->setText(row.shown);
        row.edit->setEnabled(favourite.has_value());
    }
    m_heading->setText(favourite ? favourites.value(*favourite, FavouriteKey::Title)
                                 : qtTrId("favourite_none"));
    for (QPushButton* each : {removeButton, previousButton, nextButton})
        each->setEnabled(favourite.has_value());
}

void FavouriteEditor::showCommand(const QString& command)
{
    commandField->setText(command);
    commandField->setCursorPosition(0);
    commandField->setToolTip(command);
    copyButton->setEnabled(!command.isEmpty());
}

void FavouriteEditor::bringForward()
{
    tessera::bringForward(*this);
    optionField->setFocus();
}

} // namespace tessera
