#pragma once

#include "catalogue/search/chips.h"
#include "catalogue/ui/keptsearches.h"

#include <QAbstractButton>
#include <QWidget>

#include <vector>

class QButtonGroup;
class QCheckBox;
class QLabel;

namespace tessera {

class ChipLayout;

/// A pill with a label and a count, one of several that exclude each other. Where there is no room for both,
/// the count is only told.
class ChipButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ChipButton(const QString& label, QWidget* parent = nullptr);

    void setCount(std::size_t count);
    /// A label that is wider than so many letters is shortened.
    void elideBeyond(int letters);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString shownLabel() const;

    QString m_count;
    int m_mostLetters = 0; ///< none: the label is shown whole
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
    /// The searches that were kept by name stand behind the chips, set off by a gap.
    void setKept(const std::vector<KeptSearch>& searches);
    /// Those that search for this are shown as chosen.
    void showQuery(const QString& query);
    /// The kept search at this place, or the last one; without one the chip that is chosen.
    void focusKept(std::size_t place);
    /// What is wrong with the search; nothing clears it.
    void complain(const QString& sentence);

Q_SIGNALS:
    void chosen(Chip chip);
    /// A kept search was put on, or off again.
    void keptClicked(std::size_t place, bool on);
    void keptMenuWanted(std::size_t place, const QPoint& at);

private:
    void addKept();
    void removeKept();

    QButtonGroup* m_group;
    ChipLayout* m_row;
    std::vector<KeptSearch> m_kept;
    std::vector<ChipButton*> m_keptChips;
    QLabel* m_complaint;
};

} // namespace tessera
