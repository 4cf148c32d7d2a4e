#include "favourites/ui/favouriteeditor.h"

#include "core/message.h"
#include "favourites/optionwords.h"
#include "widgets/bringforward.h"
#include "widgets/plaintooltip.h"

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

constexpr int firstWidth = 560;

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

} // namespace

FavouriteEditor::FavouriteEditor(QWidget* parent)
    : FieldsEditor({"favouriteRemove", "favouritePrevious", "favouriteNext", "favouriteClose"}, parent)
    , optionField(new OptionField)
    , optionWarning(new QLabel)
    , commandField(new QLineEdit)
    , copyButton(button("favouriteCopy", textKey("favourite_copy")))
{
    setObjectName(QStringLiteral("favouriteEditor"));
    setWindowTitle(qtTrId("favourite_editor"));
    addFields();
    addCommand();
    addButtons(firstWidth);
    connect(this, &FieldsEditor::fieldEdited, this,
            [this](std::uint32_t favourite, int field, const QString& text) {
                Q_EMIT edited(favourite, fieldRows[static_cast<std::size_t>(field)].key, text);
            });
}

void FavouriteEditor::addFields()
{
    for (const FieldRow& each : fieldRows)
        addField(each.name, each.label, each.key == FavouriteKey::Option ? optionField : new QLineEdit);
    optionField->setPlaceholderText(qtTrId("favourite_option_hint"));
    optionWarning->setObjectName(QStringLiteral("favouriteOptionWarning"));
    optionWarning->setProperty("role", QStringLiteral("notice"));
    optionWarning->setTextFormat(Qt::PlainText);
    optionWarning->setWordWrap(true);
    optionWarning->hide();
    form().addRow(QString(), optionWarning);
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
    form().addRow(qtTrId("favourite_command"), row);
    connect(copyButton, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(commandField->text()); });
    showCommand(QString());
}

QLineEdit* FavouriteEditor::field(FavouriteKey key) const
{
    const auto row = std::ranges::find(fieldRows, key, &FieldRow::key);
    return FieldsEditor::field(static_cast<int>(row - fieldRows.begin()));
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
            sentences << Message{"favourite_option_unknown", {unknown.join(QStringLiteral(", "))}}.text();
    }
    if (!words.isEmpty() && words.split(QLatin1Char(' ')).contains(QString()))
        sentences << qtTrId("favourite_option_blank");
    optionWarning->setText(sentences.join(QLatin1Char('\n')));
    optionWarning->setVisible(!sentences.isEmpty());
}

void FavouriteEditor::show(std::optional<std::uint32_t> favourite, const Favourites& favourites)
{
    const auto value = [&favourites](std::uint32_t item, int field) {
        return favourites.value(item, fieldRows[static_cast<std::size_t>(field)].key);
    };
    showItem(favourite, {favourites.records().size(), value},
             favourite ? favourites.value(*favourite, FavouriteKey::Title) : qtTrId("favourite_none"), true);
}

void FavouriteEditor::showCommand(const QString& command)
{
    commandField->setText(command);
    commandField->setCursorPosition(0);
    commandField->setToolTip(plainToolTip(command));
    copyButton->setEnabled(!command.isEmpty());
}

void FavouriteEditor::bringForward()
{
    tessera::bringForward(*this);
    optionField->setFocus();
}

} // namespace tessera
