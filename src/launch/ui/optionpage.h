#pragma once

#include "launch/popupitems.h"
#include "widgets/formpage.h"

#include <span>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace tessera {

class DefaultsController;
class PathChooser;

/// A page of the preferences with launch options. Its controls stand as members under their own names.
class OptionPage : public FormPage
{
    Q_OBJECT

public:
    /// `identifier` is the page's item in the preferences' toolbar.
    explicit OptionPage(const QString& identifier, QWidget* parent = nullptr);

    QString identifier() const { return m_identifier; }

    /// Whose commands the buttons beside paths run; before the page is shown.
    void setChooser(PathChooser& chooser) { m_chooser = &chooser; }

protected:
    void showEvent(QShowEvent* event) override;
    /// Called once, before the page is first shown: makes what a start of the program does not need.
    virtual void complete(PathChooser& chooser);
    /// A button behind a field that stands in a row of controls.
    QPushButton* addChooseButton(QLineEdit* field);
    QComboBox* makePopup(const char* name, std::span<const PopupItem> items);
    QCheckBox* makeBox(const char* name, const char* labelKey);
    QLineEdit* makeField(const char* name, const char* accessibleKey = nullptr);
    /// Radio buttons whose ids are their rows, which end their names, too.
    QButtonGroup* makeMatrix(const char* name, std::span<const char* const> labelKeys);

private:
    QString m_identifier;
    PathChooser* m_chooser = nullptr;
    bool m_isComplete = false;
};

} // namespace tessera
