#include "tools/ui/verificationpage.h"

#include "core/message.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "widgets/boundcontrols.h"
#include "widgets/named.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace tessera {

namespace {

constexpr int labelDrop = 4; // to the first box's line
constexpr int stateWidth = 236;
constexpr int gap = 12;
constexpr int listShare = 3;
constexpr int detailsShare = 2;

// What the emulator's words mean, in the verdicts' order.
constexpr std::array<const char*, verdicts.size()> meanings{
    textKey("verdict_isgood"), textKey("verdict_isbesta"),  textKey("verdict_iclength"),
    textKey("verdict_iccsum"), textKey("verdict_nredump"),  textKey("verdict_ngdk"),
    textKey("verdict_isbad"),  textKey("verdict_notfound"), textKey("verdict_nfsparent"),
    textKey("verdict_nfngd"),  textKey("verdict_nfbo"),     textKey("verdict_other")};

} // namespace

VerificationPage::VerificationPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , rows(new RowsModel({qtTrId("existence_set"), qtTrId("verification_state")}, this))
    , setList(named("setList", new RowsList(*rows, this), qtTrId("verification_sets")))
    , setDetails(makeText("setDetails", qtTrId("verification_details")))
    , button_ask3(makeFootButton("button_ask3", qtTrId("tool_from_mame")))
    , button_convert2(makeFootButton("button_convert2", qtTrId("verification_convert")))
{
    addHeading(qtTrId("verification_page"), qtTrId("verification_explanation"));
    verifyromsTextField = addPath(selectVerifytxt, defaults);
    addLine();
    QLabel* label = addRow(qtTrId("verification_verdicts"), makeBoxes(defaults));
    label->setContentsMargins(label->contentsMargins() + QMargins(0, labelDrop, 0, 0));
    layout()->setAlignment(label, Qt::AlignRight | Qt::AlignTop);
    addLine();
    addWide(makeSets(), 1);
    button_ask3->setToolTip(qtTrId("verification_ask_tip"));
}

// Two columns, the report's order downwards; the words are the emulator's own in every language.
QWidget* VerificationPage::makeBoxes(DefaultsController& defaults)
{
    constexpr int lines = static_cast<int>(verdicts.size()) / 2;
    auto* group = new QWidget(this);
    auto* layout = new QGridLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(24);
    layout->setColumnStretch(2, 1);
    for (std::size_t i = 0; i < verdicts.size(); ++i) {
        const Verdict& verdict = verdicts[i];
        auto* box = new QCheckBox(
            QString::fromLatin1(verdict.summary.data(), static_cast<qsizetype>(verdict.summary.size())),
            group);
        box->setObjectName(QLatin1String(verdict.button));
        box->setToolTip(qtTrId(meanings[i]));
        box->setAccessibleDescription(qtTrId(meanings[i]));
        bind(*box, defaults, *verdict.key);
        boxes[i] = box;
        const int place = static_cast<int>(i);
        layout->addWidget(box, place % lines, place / lines);
    }
    return group;
}

ChosenVerdicts VerificationPage::chosen() const
{
    ChosenVerdicts chosen;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        chosen[i] = boxes[i]->isChecked();
    return chosen;
}

QWidget* VerificationPage::makeSets()
{
    setList->setEmptyText(qtTrId("verification_empty"));
    setList->setColumnWidth(RowsModel::StateColumn, stateWidth);
    setDetails->setPlaceholderText(qtTrId("verification_details"));
    auto* sets = new QWidget(this);
    auto* layout = edgeToEdge(sets, gap);
    layout->addWidget(setList, listShare);
    layout->addWidget(setDetails, detailsShare);
    connect(setList->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &VerificationPage::showDetails);
    return sets;
}

void VerificationPage::showSets(std::vector<VerifiedSet> sets)
{
    m_sets = std::move(sets);
    std::vector<RowsModel::Row> shown;
    shown.reserve(m_sets.size());
    for (const VerifiedSet& set : m_sets)
        shown.push_back({set.name, stateOf(set)});
    setDetails->clear();
    rows->setRows(std::move(shown));
}

void VerificationPage::showDetails()
{
    const QModelIndex current = setList->currentIndex();
    if (!current.isValid())
        return setDetails->clear();
    const VerifiedSet& set = m_sets[rows->placeOf(static_cast<std::size_t>(current.row()))];
    QStringList lines{QString::fromStdString(set.name) + QStringLiteral(" · ") + stateOf(set)};
    if (!set.files.empty())
        lines << QString();
    for (const WrongFile& file : set.files)
        lines << QStringLiteral("• ") + sentenceOf(set, file);
    setDetails->setPlainText(lines.join(QLatin1Char('\n')));
}

} // namespace tessera
