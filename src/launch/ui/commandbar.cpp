#include "launch/ui/commandbar.h"

#include "core/message.h"
#include "launch/emulatorcommands.h"
#include "widgets/boundcontrols.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace tessera {

namespace {

constexpr int indicatorWidth = 72;

const char* subjectKey(Subject subject)
{
    switch (subject) {
    case Subject::Game:
        return textKey("command_game");
    case Subject::Archive:
        return textKey("command_archive");
    case Subject::Executable:
        return textKey("command_executable");
    case Subject::None:
        break;
    }
    return nullptr;
}

// What is really run, which a title does not always tell.
QString tip(const CommandRow& row)
{
    const char* subject = subjectKey(row.subject);
    const QString what = subject == nullptr ? QString() : qtTrId(subject) + QLatin1Char(' ');
    return QStringLiteral("mame ") + what + QLatin1String(row.argument);
}

QString tip(const ExportRow& row)
{
    return QStringLiteral("mame ") + QLatin1String(row.argument);
}

template <class Rows>
QComboBox* makePopup(const char* name, const char* accessibleKey, const Rows& rows)
{
    auto* popup = new QComboBox;
    popup->setObjectName(QLatin1String(name));
    popup->setAccessibleName(qtTrId(accessibleKey));
    for (const auto& row : rows) {
        if (row.title == nullptr) {
            popup->insertSeparator(popup->count());
            continue;
        }
        popup->addItem(QLatin1String(row.title));
        popup->setItemData(popup->count() - 1, tip(row), Qt::ToolTipRole);
    }
    popup->setMaxVisibleItems(popup->count());
    return popup;
}

QPushButton* makeButton(const char* name, const char* labelKey)
{
    auto* button = new QPushButton(qtTrId(labelKey));
    button->setObjectName(QLatin1String(name));
    return button;
}

} // namespace

CommandBar::CommandBar(DefaultsController& defaults, QWidget* parent)
    : QWidget(parent)
    , commandPop(makePopup("commandPop", textKey("command_label"), commandRows))
    , returnButton(makeButton("returnButton", textKey("command_run")))
    , exportPop(makePopup("exportPop", textKey("command_exportlabel"), exportRows))
    , exportButton(makeButton("exportButton", textKey("command_export")))
    , progressInd(new QProgressBar)
    , stopButton(makeButton("stopButton", textKey("command_stop")))
{
    setProperty("role", QStringLiteral("toolbar"));
    setAttribute(Qt::WA_StyledBackground);
    progressInd->setObjectName(QStringLiteral("progressInd"));
    progressInd->setAccessibleName(qtTrId("command_progress"));
    progressInd->setRange(0, 0);
    progressInd->setTextVisible(false);
    progressInd->setFixedWidth(indicatorWidth);
    layOut();
    setBusy(false);
    bind(*commandPop, defaults, keys::Commandoption);
    bind(*exportPop, defaults, keys::Commandexport);
}

void CommandBar::layOut()
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 10, 12, 10);
    layout->setSpacing(8);
    for (const auto& [key, popup, button] :
         {std::tuple{textKey("command_label"), commandPop, returnButton},
          std::tuple{textKey("command_exportlabel"), exportPop, exportButton}}) {
        auto* label = new QLabel(qtTrId(key));
        label->setProperty("role", QStringLiteral("dim"));
        label->setBuddy(popup);
        layout->addWidget(label);
        layout->addWidget(popup);
        layout->addWidget(button);
        layout->addSpacing(12);
    }
    layout->addStretch();
    layout->addWidget(progressInd);
    // In the place of the button that it takes back, where it is seen in a narrow window too.
    layout->insertWidget(layout->indexOf(returnButton) + 1, stopButton);
    stopButton->setMinimumWidth(returnButton->sizeHint().width());
    QSizePolicy policy = progressInd->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    progressInd->setSizePolicy(policy);
    // The window stays as narrow as it was left.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void CommandBar::setBusy(bool isBusy)
{
    if (isBusy)
        m_focused = focusWidget();
    progressInd->setVisible(isBusy);
    returnButton->setVisible(!isBusy);
    stopButton->setVisible(isBusy);
    for (QWidget* control : {static_cast<QWidget*>(commandPop), static_cast<QWidget*>(returnButton),
                             static_cast<QWidget*>(exportPop), static_cast<QWidget*>(exportButton)})
        control->setEnabled(!isBusy);
    if (isBusy)
        stopButton->setFocus();
    else if (m_focused)
        m_focused->setFocus();
}

} // namespace tessera
