#pragma once

#include "favourites/favourites.h"
#include "favourites/ui/optionfield.h"

#include <QWidget>

class QFormLayout;
class QLabel;
class QPushButton;

namespace tessera {

/// The values of the selected favourite, edited in place: a field is taken over when it is left or with
/// Return.
class FavouriteEditor : public QWidget
{
    Q_OBJECT

public:
    explicit FavouriteEditor(QWidget* parent = nullptr);
    ~FavouriteEditor() override;

    /// The field of a key.
    QLineEdit* field(FavouriteKey key) const;

    OptionField* optionField;
    QLabel* optionWarning;
    QLineEdit* commandField;
    QPushButton* copyButton;
    QPushButton* removeButton;
    QPushButton* previousButton;
    QPushButton* nextButton;
    QPushButton* closeButton;

    void setKnownOptions(KnownOptions known);
    /// Shows one of the favourites, or that none is selected. A field that is being edited keeps its text
    /// while the favourite is the same.
    void show(std::optional<std::uint32_t> favourite, const Favourites& favourites);
    /// The whole command line; empty where there is none.
    void showCommand(const QString& command);
    void bringForward();
    /// Takes over what stands in a field that was not left yet.
    void commit();

Q_SIGNALS:
    void edited(std::uint32_t favourite, FavouriteKey key, const QString& text);

private:
    struct Row {
        FavouriteKey key;
        QLineEdit* edit;
        QString shown; ///< the favourite's own value
    };

    void addFields();
    void addCommand();
    void addButtons(class QVBoxLayout* layout);
    void take(Row& row);
    void judgeOptions();
    bool isStillShown(const Favourites& favourites) const;

    std::vector<Row> m_rows;
    std::optional<std::uint32_t> m_favourite;
    KnownOptions m_known;
    QLabel* m_heading;
    QFormLayout* m_form;
};

} // namespace tessera
