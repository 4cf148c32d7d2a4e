#pragma once

#include <QFlags>
#include <QStringListModel>
#include <QWidget>

class QLabel;
class QLineEdit;
class QListView;
class QSpinBox;

namespace tessera {

/// A window to choose a font in, beside the window that it is chosen for: families, styles, and a sample.
/// What is chosen is told at once.
class FontPanel : public QWidget
{
    Q_OBJECT

public:
    /// A control that a panel may show. The families are always there.
    enum Mode { FilterMode = 1, FaceMode = 2, SizeMode = 4, AllModes = FilterMode | FaceMode | SizeMode };
    Q_DECLARE_FLAGS(Modes, Mode)

    explicit FontPanel(QWidget* parent = nullptr);

    void setModes(Modes modes);
    /// Shows a font as the choice, without telling it.
    void setPanelFont(const QFont& font);
    /// The font in the chosen family, and in the chosen style and size where the panel shows them.
    QFont convertFont(const QFont& font) const;

    QLineEdit* filterField;
    QListView* familyList;
    QListView* styleList;
    QSpinBox* sizeField;
    QLabel* sampleLabel;

Q_SIGNALS:
    void fontChosen();

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void fillFamilies();
    void fillStyles();
    void showSample();
    void chooseFamily(const QString& family);
    void chooseStyle(const QString& style);

    Modes m_modes = AllModes;
    QStringList m_allFamilies;
    QStringListModel m_families;
    QStringListModel m_styles;
    QString m_family;
    QString m_style;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(FontPanel::Modes)

} // namespace tessera
