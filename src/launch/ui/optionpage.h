#pragma once

#include "launch/popupitems.h"
#include "widgets/formpage.h"

#include <span>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessera {

class DefaultsController;

/// A page of the preferences with launch options. Its controls stand as members under their own names.
class OptionPage : public FormPage
{
    Q_OBJECT

public:
    OptionPage(const char* titleKey, const QString& icon, QWidget* parent = nullptr);

    QString title() const { return m_title; }
    /// The name of a picture of resources/icons.
    QString icon() const { return m_icon; }

protected:
    QComboBox* makePopup(const char* name, std::span<const PopupItem> items);
    QCheckBox* makeBox(const char* name, const char* labelKey);
    QLineEdit* makeField(const char* name, const char* accessibleKey = nullptr);
    /// Radio buttons whose ids are their rows.
    QButtonGroup* makeMatrix(const char* name, std::span<const char* const> labelKeys);

private:
    QString m_title;
    QString m_icon;
};

} // namespace tessera
