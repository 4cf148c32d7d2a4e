#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/have.h"

#include <QWidget>

#include <optional>

class QGridLayout;
class QLabel;

namespace tessera {

/// What is known of the selected machine: its titles and its facts.
class FactsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FactsPanel(QWidget* parent = nullptr);

    /// One record, or nothing; with several selected, `count` is told instead.
    void showRecord(const GameRecord* record, int count);
    /// What the ROM folders hold of that record; nothing while they are not known.
    void showHave(std::optional<Have> have, const GameRecord* record);
    void showMark(const QString& imageName);

    QLabel* romMark = nullptr;

private:
    QLabel* addFact(const char* textKey, QWidget* value);

    QLabel* m_title;
    QLabel* m_titlejp;
    QGridLayout* m_facts;
    QWidget* m_factsBox;
    struct Fact {
        Field field;
        QLabel* name;
        QLabel* value;
    };
    std::vector<Fact> m_rows;
    QLabel* m_kind;
    QLabel* m_status = nullptr;
    QLabel* m_have;
    QLabel* m_haveName;
};

} // namespace tessera
