#pragma once

#include <QMainWindow>

#include <cstddef>
#include <span>

class QLabel;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QToolButton;

namespace tessera {

class Bar;
class DefaultsController;
class EmptyState;
class FactsPanel;
class GameTableView;
class SidePanel;
struct ChosenKey;

/// A list of games with its side panel, tool row and status line.
class ListWindow : public QMainWindow
{
    Q_OBJECT

public:
    SidePanel* sidePanel;
    FactsPanel* factsPanel; ///< in the side panel
    EmptyState* emptyState;
    QPushButton* playButton;
    QToolButton* stopButton;
    QToolButton* randomButton;

    /// Says a thing once in the status line; it stays until the next one.
    void showMessage(const QString& sentence);
    /// Says nothing, where that was the last sentence.
    void takeBack(const QString& sentence);
    void setRunning(bool running);

    /// Columns and dividers as they were left, and back into the settings.
    void restore();
    void remember();

Q_SIGNALS:
    void closeRequested();

protected:
    struct ColumnWidth {
        int column;
        int width;
    };
    /// What the windows differ in; outlives them.
    struct Kind {
        const char* table; ///< the object's name
        const char* tableName; ///< the text
        const char* split;
        const char* split2;
        const char* count; ///< the object's name
        const char* allShown; ///< the text
        const char* someShown; ///< the text
        const ChosenKey& splitKey;
        const ChosenKey& split2Key;
        const ChosenKey& columnsKey;
        std::span<const ColumnWidth> widths;
    };
    /// In pixels, until the user chooses others.
    static constexpr QSize firstSize{1200, 760};

    ListWindow(DefaultsController& defaults, GameTableView* table, const Kind& kind);

    GameTableView* table() const { return m_table; }
    /// The table, or what is said in its place.
    QWidget* pages() const;
    /// With its first three buttons.
    Bar* makeToolRow();
    void layOut(Bar* toolRow, QWidget* listSide);
    QLabel* statusLabel(const char* name);
    QPushButton* statusButton(const char* name, const QString& text);
    /// The number of rows, and why there are not more; what is said in the place of no rows.
    void showCount(std::size_t shown, std::size_t all, const QStringList& reasons = {});
    QLabel* countLabel() const { return m_count; }
    QLabel* message() const { return m_message; }

    void closeEvent(QCloseEvent* event) override;

    DefaultsController& m_defaults;

private:
    const Kind& m_kind;
    GameTableView* m_table;
    QSplitter* m_split;
    QStackedWidget* m_pages;
    QLabel* m_count;
    QLabel* m_message;
};

} // namespace tessera
