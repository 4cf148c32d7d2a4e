#pragma once

#include "catalogue/search/chips.h"

#include <QAbstractButton>
#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QLabel;

namespace tessera {

/// A pill with a label and a count, one of several that exclude each other. Where there is no room for both,
/// the count is only told.
class ChipButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ChipButton(const QString& label, QWidget* parent = nullptr);

    void setCount(std::size_t count);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_count;
};

/// The row over the list: chips with counts, what is wrong with a search, and the switch for families.
class ChipBar : public QWidget
{
    Q_OBJECT

public:
    explicit ChipBar(QWidget* parent = nullptr);

    QCheckBox* familiesBox;

    void setChip(Chip chip);
    void setCounts(const ChipCounts& counts);
    /// What is wrong with the search; nothing clears it.
    void complain(const QString& sentence);

Q_SIGNALS:
    void chosen(Chip chip);

private:
    QButtonGroup* m_group;
    QLabel* m_complaint;
};

} // namespace tessera
