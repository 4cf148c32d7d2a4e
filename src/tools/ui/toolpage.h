#pragma once

#include "tools/ui/toolpaths.h"
#include "widgets/formpage.h"

class QPlainTextEdit;
class QPushButton;

namespace tessera {

class DefaultsController;

/// A page of the utility window.
class ToolPage : public FormPage
{
    Q_OBJECT

public:
    using FormPage::FormPage;

    /// The page's buttons at the window's foot; the last one is what the page is for.
    const QList<QPushButton*>& footButtons() const { return m_footButtons; }

Q_SIGNALS:
    void pathWanted(QLineEdit& field, const tessera::ToolPath& path);
    void revealWanted(const QString& path);

protected:
    /// A row with a path, and its field. With settings the field is tied to the one where the path is stored.
    QLineEdit* addPath(const ToolPath& path);
    QLineEdit* addPath(const ToolPath& path, DefaultsController& defaults);
    QPushButton* makeButton(const char* name, const QString& text);
    QPushButton* makeFootButton(const char* name, const QString& text);
    /// A text to be read, that Tab leaves.
    QPlainTextEdit* makeText(const char* name, const QString& accessibleName);

private:
    QList<QPushButton*> m_footButtons;
};

} // namespace tessera
