#pragma once

#include "launch/optiontable.h"
#include "widgets/formpage.h"

class QComboBox;

namespace tessera {

class DefaultsController;
class EmulatorProfile;
class PathChooser;

/// A page of the preferences with launch options: the controls that the table of options places on it, each
/// under its own name and tied to its setting.
class OptionPage : public FormPage
{
    Q_OBJECT

public:
    OptionPage(Page page, DefaultsController& defaults, PathChooser& chooser, QWidget* parent = nullptr);

    /// The page's item in the preferences' toolbar.
    QString identifier() const;
    /// Puts what the controls hold in place of what is stored.
    void read(LaunchOptions& options) const;
    /// Marks what the emulator does not know, and offers what it takes besides; without a profile neither.
    void fitTo(const EmulatorProfile* profile);
    /// A control that the page has.
    template <class Control>
    Control& control(const char* name) const
    {
        return *findChild<Control*>(QLatin1StringView(name));
    }

protected:
    /// The control of a row of the table, with what belongs beside it, or the buttons of a group.
    QWidgetList make(const OptionRow& row);
    QComboBox* makePopup(const char* name, std::span<const PopupItem> items);

private:
    void layOut();
    QWidgetList makeButtons(const OptionRow& row);
    QWidgetList makeField(const OptionRow& row);

    Page m_page;
    DefaultsController& m_defaults;
    PathChooser& m_chooser;
};

} // namespace tessera
