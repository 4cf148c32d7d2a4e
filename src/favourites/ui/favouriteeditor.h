#pragma once

#include "favourites/favourites.h"
#include "favourites/ui/optionfield.h"
#include "widgets/fieldseditor.h"

namespace tessera {

/// The values of the selected favourite, and the command line that they make.
class FavouriteEditor : public FieldsEditor
{
    Q_OBJECT

public:
    explicit FavouriteEditor(QWidget* parent = nullptr);

    /// The field of a key.
    QLineEdit* field(FavouriteKey key) const;

    OptionField* optionField;
    QLabel* optionWarning;
    QLineEdit* commandField;
    QPushButton* copyButton;

    void setKnownOptions(KnownOptions known);
    /// Shows one of the favourites, or that none is selected.
    void show(std::optional<std::uint32_t> favourite, const Favourites& favourites);
    /// The whole command line; empty where there is none.
    void showCommand(const QString& command);
    void bringForward();

Q_SIGNALS:
    void edited(std::uint32_t favourite, FavouriteKey key, const QString& text);

private:
    void addFields();
    void addCommand();
    void judgeOptions();

    KnownOptions m_known;
};

} // namespace tessera
