#pragma once

#include "platform/userdefaults.h"

#include <QHash>
#include <QObject>

namespace tessera {

/// What controls are bound to: the stored setting, or its initial value until the user changes it. Initial
/// values are never written by showing them.
class DefaultsController : public QObject
{
    Q_OBJECT

public:
    explicit DefaultsController(UserDefaults& defaults, QObject* parent = nullptr);

    /// Installs the table of initial values: `systemFont` and `homeFolder` complete the rows that depend on
    /// them.
    void setInitialValues(const QString& systemFont, const QString& homeFolder);
    /// Puts every setting that has an initial value back to it, and flushes.
    void revertToInitialValues();

    bool flag(const Key<bool>& key) const;
    /// The selected position of a pop-up; a stored value that is no number gives the initial one.
    int index(const Key<float>& key) const;
    /// The number itself, where a part of one counts; one that is no number gives the initial one.
    double number(const Key<float>& key) const;
    /// The text that a field shows; a number kept as a float reads "1", never "1.0".
    QString text(const Key<float>& key) const;
    QString text(const Key<QLatin1StringView>& key) const;
    QString text(const ChosenKey& key) const;

    void setFlag(const Key<bool>& key, bool on);
    void setIndex(const Key<float>& key, double number);
    /// A field bound to a number keeps what is typed: its number, or the text as it stands where it is none.
    void setText(const Key<float>& key, const QString& text);
    void setText(const Key<QLatin1StringView>& key, const QString& text);
    void setText(const ChosenKey& key, const QString& text);
    /// For what no control is bound to.
    void keep(const ChosenKey& key, const QVariant& value);
    void forget(const ChosenKey& key);

    /// What was stored, without initial values. Whatever is written is written by the controller.
    const UserDefaults& stored() const { return m_defaults; }
    /// Writes what has changed to disk. What there is to say where that failed, otherwise nothing.
    QString flush();

Q_SIGNALS:
    /// One setting has another value now; an empty name stands for all of them.
    void changed(const QString& name);

private:
    QVariant shown(QLatin1StringView name) const;
    void store(QLatin1StringView name, const QVariant& value);

    UserDefaults& m_defaults;
    QHash<QString, QVariant> m_initial;
};

} // namespace tessera
