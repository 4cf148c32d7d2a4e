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
    OptionPage(const char* titleKey, const QString& icon, QWidget* parent = nullptr);

    QString title() const { return m_title; }
    /// The name of a picture of resources/icons.
    QString icon() const { return m_icon; }

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
    /// Radio buttons whose ids are their rows.
    QButtonGroup* makeMatrix(const char* name, std::span<const char* const> labelKeys);

private:
    QString m_title;
    QString m_icon;
    PathChooser* m_chooser = nullptr;
    bool m_isComplete = false;
};

} // namespace tessera
