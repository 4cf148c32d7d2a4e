#pragma once

#include <QLineEdit>

#include <vector>

namespace tessera {

class Query;

/// Where the user says what to look for. Wrong terms are underlined while they are typed.
class SearchField : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchField(QWidget* parent = nullptr);

    /// Wrong terms and those that are half typed are drawn otherwise.
    void markTerms(const Query& query);
    /// For the next search: what is typed takes the place of the last one.
    void beginSearch();
    /// Goes on from a key that was typed in the list.
    void beginWith(const QString& typed);
    /// The same for what an input method sent to the list.
    void composeOn(QInputMethodEvent* event);

    /// Searches can be kept, and the last ones come back: what this takes is connected.
    void offerSearches();
    /// Newest first.
    void setLastSearches(const QStringList& searches);
    /// Beneath the field.
    void openLastSearches();

Q_SIGNALS:
    /// The user goes on from what was searched for: by Return, into the list or to something else.
    void searched();
    void keepWanted();
    /// The last searches are to be forgotten.
    void forgetWanted();
    /// The down arrow: on to what was found.
    void leftDownwards();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void fillTermsMenu();
    QAction* addMenu(const char* icon, const QString& name);
    void openBeneath(QMenu& menu);

    struct Mark {
        int begin;
        int size;
        bool isWrong; ///< else it is not finished yet
    };

    QMenu* m_terms;
    QMenu* m_last;
    QAction* m_keep;
    bool m_offersSearches = false;
    std::vector<Mark> m_marks;
    bool m_isComposing = false; ///< an input method shows a text that is not the field's yet
};

} // namespace tessera
