#pragma once

#include <QByteArrayView>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace tessera {

/// What one emulator program says of itself in its -showusage text: the options that it understands.
class EmulatorProfile
{
public:
    /// Nothing where the text is not an emulator's.
    static std::optional<EmulatorProfile> fromUsage(QByteArrayView usage);

    /// True where the program takes `option` ("-rotate"), or its opposite ("-norotate").
    bool lists(QStringView option) const;

    struct Fitted {
        QStringList arguments;
        QStringList leftOut; ///< what the program would not understand, with values: "-beam 1"
    };

    /// The builder's list in the program's own words: without what it does not list and without empty values,
    /// renamed options under their new name, values without literal double quotes.
    Fitted fit(const QStringList& built) const;

private:
    bool listsName(QStringView name) const;
    void fitValue(QString option, const QString& value, Fitted& fitted) const;

    QSet<QString> m_names;
    QStringList m_overlong; ///< names with the first word of their description behind them
    bool m_soundTakesValue = true;
};

} // namespace tessera
