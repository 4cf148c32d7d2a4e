#include "app/windows/miniwindow.h"

#include "artwork/ui/aspectview.h"
#include "widgets/rounded_view2.h"
#include "widgets/toolbutton.h"

#include <QCloseEvent>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QToolButton>

namespace tessera {

namespace {

constexpr QSize pictureSize(112, 84);
constexpr QSize firstSize(500, 150);
constexpr SizeLimits ownLimits{400, 150, 0, 0};
constexpr int setRole = Qt::UserRole;

} // namespace

MiniWindow::MiniWindow(DefaultsController& defaults, QWidget* parent)
    : TransparentWindow(parent)
    , imageView(new AspectView(defaults))
    , shotTextField2(new QLabel)
    , emulatorLabel(new QLabel)
    , setnameTextField2(new QLineEdit)
    , randomButton(toolButton(QStringLiteral("random"), qtTrId("main_random")))
    , playButton(accentButton(QStringLiteral("play"), qtTrId("main_play")))
    , aboveButton(toolButton(QStringLiteral("above"), qtTrId("mini_above")))
    , mainButton(toolButton(QStringLiteral("list"), qtTrId("mini_main")))
    , m_title(new QLabel)
    , m_suggestions(new QStandardItemModel(this))
{
    setObjectName(QStringLiteral("window2"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    m_title->setProperty("role", QStringLiteral("dim"));
    m_title->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);

    auto* side = new QVBoxLayout;
    side->setSpacing(8);
    side->addLayout(makeHead());
    side->addLayout(makeLauncher());
    side->addWidget(m_title, 1);
    // Above the content are the panel's own buttons, at the left.
    auto* layout = new QHBoxLayout(panel());
    layout->setContentsMargins(14, 34, 14, 14);
    layout->setSpacing(12);
    layout->addLayout(makePicture());
    layout->addLayout(side, 1);
    setLimits(ownLimits);
    setnameTextField2->setFocus();
    resize(firstSize + 2 * QSize(shadowWidth, shadowWidth));
}

QLayout* MiniWindow::makePicture()
{
    imageView->setObjectName(QStringLiteral("miniImageView"));
    imageView->setAccessibleName(qtTrId("mini_picture"));
    imageView->setFixedSize(pictureSize);
    shotTextField2->setObjectName(QStringLiteral("shotTextField2"));
    shotTextField2->setProperty("role", QStringLiteral("caption"));
    shotTextField2->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* picture = new QVBoxLayout;
    picture->setSpacing(2);
    picture->addWidget(imageView);
    picture->addWidget(shotTextField2);
    picture->addStretch(1);
    return picture;
}

QLayout* MiniWindow::makeHead()
{
    emulatorLabel->setObjectName(QStringLiteral("emulatorLabel"));
    emulatorLabel->setTextFormat(Qt::PlainText);
    emulatorLabel->setProperty("role", QStringLiteral("faint"));
    aboveButton->setCheckable(true);
    aboveButton->setObjectName(QStringLiteral("aboveButton"));
    mainButton->setObjectName(QStringLiteral("mainButton"));
    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(emulatorLabel, 1);
    head->addWidget(aboveButton);
    head->addWidget(mainButton);
    return head;
}

QLayout* MiniWindow::makeLauncher()
{
    setnameTextField2->setObjectName(QStringLiteral("setnameTextField2"));
    setnameTextField2->setAccessibleName(qtTrId("mini_set"));
    setnameTextField2->setPlaceholderText(qtTrId("mini_set"));
    // It is searched by us: what is suggested fits, though it may not begin with what was typed.
    auto* completer = new QCompleter(m_suggestions, this);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setCompletionRole(setRole);
    setnameTextField2->setCompleter(completer);
    randomButton->setObjectName(QStringLiteral("randomButton"));
    auto* launcher = new QHBoxLayout;
    launcher->setSpacing(8);
    launcher->addWidget(setnameTextField2, 1);
    launcher->addWidget(randomButton);
    launcher->addWidget(playButton);
    connect(setnameTextField2, &QLineEdit::returnPressed, this, &MiniWindow::playRequested);
    connect(playButton, &QPushButton::clicked, this, &MiniWindow::playRequested);
    return launcher;
}

void MiniWindow::suggest(const QList<Suggestion>& suggestions)
{
    m_suggestions->clear();
    for (const Suggestion& each : suggestions) {
        auto* item = new QStandardItem(
            each.title.isEmpty() ? each.set : QString(each.set + QStringLiteral("   ") + each.title));
        item->setData(each.set, setRole);
        m_suggestions->appendRow(item);
    }
}

void MiniWindow::showTitle(const QString& title)
{
    m_title->setText(title);
}

void MiniWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    orderOut();
}

void MiniWindow::setEmulator(const QString& title)
{
    const QString text = title + QStringLiteral(" :");
    setWindowTitle(text);
    emulatorLabel->setText(text);
}

} // namespace tessera
