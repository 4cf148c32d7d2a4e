#include "tools/ui/verificationpage.h"

#include "core/failure.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {

constexpr int labelDrop = 4; // to the first box's line

// What the emulator's words mean, in the verdicts' order.
constexpr std::array<const char*, verdicts.size()> meanings{
    textKey("verdict_isgood"), textKey("verdict_isbesta"),  textKey("verdict_iclength"),
    textKey("verdict_iccsum"), textKey("verdict_nredump"),  textKey("verdict_ngdk"),
    textKey("verdict_isbad"),  textKey("verdict_notfound"), textKey("verdict_nfsparent"),
    textKey("verdict_nfngd"),  textKey("verdict_nfbo"),     textKey("verdict_other")};

} // namespace

VerificationPage::VerificationPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , button_convert2(new QPushButton(qtTrId("verification_convert"), this))
{
    addHeading(qtTrId("verification_page"), qtTrId("verification_explanation"));
    const PathField* verifyroms = addPath(qtTrId("verification_file"), QStringLiteral("verifyromsTextField"),
                                          QStringLiteral("verifyroms"));
    verifyromsTextField = verifyroms->field();
    button_verifyroms = verifyroms->chooseButton();
    reveal_verifyroms = verifyroms->revealButton();
    button_convert2->setObjectName(QStringLiteral("button_convert2"));
    addLine();
    QLabel* label = addRow(qtTrId("verification_verdicts"), makeBoxes(defaults));
    label->setContentsMargins(0, labelDrop, 0, 0);
    layout()->setAlignment(label, Qt::AlignRight | Qt::AlignTop);
    addStretch();
    bind(*verifyromsTextField, defaults, keys::verifyromsText);
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

} // namespace tessera
