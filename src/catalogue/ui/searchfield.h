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
    /// Goes on from a key that was typed in the list.
    void beginWith(const QString& typed);
    /// The same for what an input method sent to the list.
    void composeOn(QInputMethodEvent* event);

Q_SIGNALS:
    /// The down arrow: on to what was found.
    void leftDownwards();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void fillTermsMenu();

    struct Mark {
        int begin;
        int size;
        bool isWrong; ///< else it is not finished yet
    };

    QMenu* m_terms;
    std::vector<Mark> m_marks;
    bool m_isComposing = false; ///< an input method shows a text that is not the field's yet
};

} // namespace tessera
