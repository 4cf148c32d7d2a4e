#pragma once

#include <QObject>

namespace tessera {

class DefaultsController;
class Desktop;

/// The kind of picture that is shown, and where its files are.
class SnapFolder : public QObject
{
    Q_OBJECT

public:
    SnapFolder(Desktop& desktop, DefaultsController& defaults, QObject* parent = nullptr);

    /// The folder of the kind that is shown; empty until Setsnapfolder() has run.
    QString snappath() const { return m_snappath; }
    /// The label of that kind; empty until then.
    QString label() const { return m_label; }
    /// The kind that is chosen, by its position.
    int kind() const;
    /// False where a parent's picture is not shown for its clone.
    bool showsParents() const;

public Q_SLOTS:
    void Setsnapfolder();
    void ChangesnapPop();
    void setKind(int position);
    /// Tags 0 and 1 snapshots, 2 titles, 3 flyers. Beeps where it cannot be opened.
    void openSnapfolder(int tag);

Q_SIGNALS:
    void labelChanged(const QString& label);
    /// Each list is to show its picture again.
    void picturesChanged();

private:
    void settingChanged(const QString& name);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    QString m_snappath;
    QString m_label;
};

} // namespace tessera
