#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

class QCompleter;
class QLineEdit;
class QStringListModel;

namespace tessera {

/// Offers makers beneath a field while one is typed there, and writes the chosen one into it. What the field
/// means is not touched, and whoever chooses nothing types as without it.
class MakerCompletion : public QObject
{
    Q_OBJECT

public:
    /// The makers that begin like a text, the commonest first.
    using Makers = std::function<QStringList(const QString& begun)>;
    /// What the field holds: a maker's name alone, or a search, where it stands behind "maker:".
    enum class Holds { Maker, Search };

    MakerCompletion(QLineEdit& field, Holds holds, Makers makers);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What of the field's text is a maker to be.
    struct Place {
        qsizetype begin;
        qsizetype size;
        QString begun; ///< without quotation marks
    };

    std::optional<Place> place() const;
    void offer();
    QStringList fitting(const QString& begun) const;
    void write(const QString& maker);
    bool takeKey(int key);

    QLineEdit& m_field;
    Holds m_holds;
    Makers m_makers;
    QStringListModel* m_offered;
    QCompleter* m_completer;
    bool m_isComposing = false; ///< an input method shows a text that is not the field's yet
};

} // namespace tessera
