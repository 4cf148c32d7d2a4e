#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;
class QToolButton;

namespace tessera {

/// A path that can be typed, chosen or shown in the file manager. The window connects the buttons to its
/// controller's commands.
class PathField : public QWidget
{
    Q_OBJECT

public:
    /// `name` is what the path is, for accessible names: "ROM folder".
    PathField(const QString& name, const QString& chooseLabel, const QString& revealLabel,
              QWidget* parent = nullptr);

    QLineEdit* field() const { return m_field; }
    QPushButton* chooseButton() const { return m_choose; }
    QToolButton* revealButton() const { return m_reveal; }

private:
    QLineEdit* m_field;
    QPushButton* m_choose;
    QToolButton* m_reveal;
};

} // namespace tessera
