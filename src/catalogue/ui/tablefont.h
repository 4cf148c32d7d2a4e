#pragma once

#include "core/settingskeys.h"
#include "widgets/fontpanel.h"

#include <QObject>

#include <memory>

namespace tessera {

class AppearancePage;
class DefaultsController;
class Desktop;

/// The commands on the fonts of the two tables: the size of both, and each font itself through one font
/// panel.
class TableFont : public QObject
{
    Q_OBJECT

public:
    TableFont(Desktop& desktop, DefaultsController& defaults, QObject* parent = nullptr);
    ~TableFont() override;

    /// Whose buttons run the commands.
    void setPage(const AppearancePage& page);

    /// The font panel's controls that a table's font takes: all but the size.
    FontPanel::Modes validModesForFontPanel() const;
    /// Made when it is first asked for: reading all families takes its time.
    FontPanel& fontPanel();

public Q_SLOTS:
    void makeTextBigger();
    void makeTextSmaller();
    void changeFont(const FontPanel& panel);
    /// Brings the font panel to the front unless it is open already.
    void showFontPanel1();
    /// The same for the favourites' table.
    void showFontPanel2();

Q_SIGNALS:
    void statusMessage(const QString& sentence);

private:
    /// Beeps and changes nothing unless the shown size lies within `smallest` and `largest`.
    void step(int by, int smallest, int largest);
    void settingChanged(const QString& setting);
    void showPanelFor(const keys::Text& font);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    std::unique_ptr<FontPanel> m_panel;
    const keys::Text* m_chosen = &keys::TablefontName; ///< what is chosen in the panel
};

} // namespace tessera
