#pragma once

#include "widgets/formpage.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessera {

class DefaultsController;

/// The settings of pictures: how they are shown, and where they are fetched from.
class PicturesPage : public FormPage
{
    Q_OBJECT

public:
    explicit PicturesPage(DefaultsController& defaults, QWidget* parent = nullptr);

    QComboBox* screenfolderPop; ///< the kind that is shown
    QCheckBox* checkboxSuppress;
    QCheckBox* wholeStepsBox;
    QComboBox* snapdownsitePop;
    QLineEdit* hostField;
    QLineEdit* snapdownTextField;
    QLineEdit* titlesdownTextField;
    QLineEdit* flyersdownTextField;

    /// By kind.
    QList<QLineEdit*> templateFields() const
    {
        return {snapdownTextField, titlesdownTextField, flyersdownTextField};
    }

private:
    void addView(DefaultsController& defaults);
    void addSites(DefaultsController& defaults);
};

} // namespace tessera
