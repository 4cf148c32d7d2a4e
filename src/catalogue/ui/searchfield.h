#pragma once

#include <QLineEdit>

namespace tessera {

class Query;

/// Where the user says what to look for. Wrong terms are underlined while they are typed.
class SearchField : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchField(QWidget* parent = nullptr);

    void markWrongTerms(const Query& query);
    /// Goes on from a key that was typed in the list.
    void beginWith(const QString& typed);

Q_SIGNALS:
    /// The down arrow: on to what was found.
    void leftDownwards();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fillTermsMenu();

    QMenu* m_terms;
};

} // namespace tessera
