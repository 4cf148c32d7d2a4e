#pragma once

#include <QPointer>

namespace tessera {

class ListWindow;
class MiniWindow;

/// What there is to say, from whoever has to say it to the windows that show it.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    explicit StatusLine(ListWindow& first, QObject* parent = nullptr);

    /// In this window, too, from now on.
    void showIn(ListWindow& window);
    /// This one shows nothing but what a command has to say, in the place of its game's title.
    void showAnswersIn(MiniWindow& window);

public Q_SLOTS:
    void say(const QString& sentence);
    /// As a command's answer.
    void answer(const QString& sentence);
    /// Where it still stands.
    void takeBack(const QString& sentence);

private:
    QList<QPointer<ListWindow>> m_windows;
    QPointer<MiniWindow> m_mini;
};

} // namespace tessera
