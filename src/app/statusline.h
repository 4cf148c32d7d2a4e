#pragma once

#include <QObject>

namespace tessera {

/// What there is to say, from whoever has to say it to the windows that show it.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

public Q_SLOTS:
    void say(const QString& sentence) { Q_EMIT said(sentence); }
    /// Says it in the mini window, too: that shows nothing but what a command has to say, in the place of its
    /// game's title.
    void answer(const QString& sentence)
    {
        Q_EMIT said(sentence);
        Q_EMIT answered(sentence);
    }
    /// Where it still stands.
    void takeBack(const QString& sentence) { Q_EMIT takenBack(sentence); }

Q_SIGNALS:
    void said(const QString& sentence);
    void answered(const QString& sentence);
    void takenBack(const QString& sentence);
};

} // namespace tessera
