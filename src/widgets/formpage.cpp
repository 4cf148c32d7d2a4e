#include "widgets/formpage.h"

#include "widgets/named.h"

#include <QAbstractButton>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

namespace tessera {

namespace {
constexpr int labelColumn = 0;
constexpr int gapColumn = 1;
constexpr int controlColumn = 2;
constexpr int fillColumn = 3;
constexpr int allColumns = 4;
constexpr int labelWidth = 150;
constexpr int gapWidth = 12;
} // namespace

FormPage::FormPage(QWidget* parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(28, 20, 28, 20);
    // No spacing: the last column often has no width, and everything ends where the lines do.
    m_grid->setHorizontalSpacing(0);
    m_grid->setColumnMinimumWidth(gapColumn, gapWidth);
    m_grid->setVerticalSpacing(8);
    m_grid->setColumnMinimumWidth(labelColumn, labelWidth);
    m_grid->setColumnStretch(controlColumn, 1);
    // Takes what a column of narrow controls leaves, so that labels stay where they are on every page.
    m_grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, fillColumn);
}

QString FormPage::withoutMnemonic(QString label)
{
    static const QRegularExpression appended(QStringLiteral("\\(&.\\)"));
    return label.remove(appended).remove(QLatin1Char('&'));
}

QLineEdit* FormPage::makeField(const char* objectName, const QString& name)
{
    return named(objectName, new QLineEdit, withoutMnemonic(name));
}

void FormPage::addHeading(const QString& title, const QString& explanation)
{
    auto* heading = withRole("heading", new QLabel(title, this));
    auto* text = withRole("dim", new QLabel(explanation, this));
    text->setWordWrap(true);
    m_grid->addWidget(heading, m_row++, labelColumn, 1, allColumns);
    m_grid->addWidget(text, m_row++, labelColumn, 1, allColumns);
    m_grid->setRowMinimumHeight(m_row++, 8);
}

QLabel* FormPage::addRow(const QString& label, QWidget* control)
{
    auto* name = withRole("dim", new QLabel(label, this));
    name->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    name->setBuddy(control);
    // A box is heard as it reads: the label may stand for the row's other boxes too.
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const bool readsItself = button != nullptr && !button->text().isEmpty();
    if (control->accessibleName().isEmpty() && !label.isEmpty() && !readsItself)
        control->setAccessibleName(withoutMnemonic(label));
    m_grid->addWidget(name, m_row, labelColumn, Qt::AlignRight | Qt::AlignVCenter);
    m_grid->addWidget(control, m_row, controlColumn);
    ++m_row;
    return name;
}

QLabel* FormPage::addRow(const QString& label, const QList<QWidget*>& controls)
{
    auto* row = new QWidget(this);
    auto* layout = edgeToEdge(row, 16);
    for (QWidget* control : controls)
        layout->addWidget(control);
    layout->addStretch();
    QLabel* name = addRow(label, row);
    if (!controls.isEmpty())
        name->setBuddy(controls.first());
    return name;
}

QLabel* FormPage::addNote(const QString& text)
{
    auto* note = withRole("dim", new QLabel(text, this));
    note->setWordWrap(true);
    m_grid->addWidget(note, m_row++, controlColumn);
    return note;
}

void FormPage::addWide(QWidget* widget, int stretch)
{
    m_grid->setRowStretch(m_row, stretch);
    m_grid->addWidget(widget, m_row++, labelColumn, 1, fillColumn);
}

void FormPage::addLine()
{
    auto* line = withRole("line", new QFrame(this));
    line->setFrameShape(QFrame::HLine);
    m_grid->addWidget(line, m_row++, labelColumn, 1, allColumns);
}

void FormPage::addStretch()
{
    m_grid->setRowStretch(m_row++, 1);
}

} // namespace tessera
