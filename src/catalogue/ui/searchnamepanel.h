#pragma once

#include "catalogue/ui/keptsearches.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace tessera {

/// Asks under which name a search is kept. A name that another one has is said before anything is lost: to
/// keep replaces that one, to rename is refused.
class SearchNamePanel : public QDialog
{
    Q_OBJECT

public:
    enum class Purpose { Keep, Rename };

    /// `search` has the name that is proposed; `others` are those that are kept beside it.
    SearchNamePanel(Purpose purpose, const KeptSearch& search, std::vector<KeptSearch> others,
                    QWidget* parent);

    QLineEdit* nameField;
    QPushButton* cancelButton;
    QPushButton* acceptButton;

Q_SIGNALS:
    void nameChosen(const QString& name);

private:
    QString name() const;
    void judgeName();

    Purpose m_purpose;
    std::vector<KeptSearch> m_others;
    QLabel* m_notice;
};

} // namespace tessera
