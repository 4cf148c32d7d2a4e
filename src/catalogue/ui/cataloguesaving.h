#pragma once

#include <QObject>

namespace tessera {

class Catalogue;
class Desktop;
class GameListController;
class RecordEditing;

/// Saves the catalogue: when it is asked for, before the program ends, and with the session.
class CatalogueSaving : public QObject
{
    Q_OBJECT

public:
    CatalogueSaving(Catalogue& catalogue, Desktop& desktop, GameListController& list, RecordEditing& editing,
                    QObject* parent = nullptr);

    /// Takes over what stands in open editors of records.
    void commitEditing();
    /// False where it could not be saved and the user does not want to quit without.
    bool saveBeforeQuitting();
    /// Without a question: nobody may be there to answer.
    void saveForSessionEnd();

public Q_SLOTS:
    void saveAction();

Q_SIGNALS:
    void statusMessage(const QString& text);

private:
    void logKept(const QString& copy);

    Catalogue& m_catalogue;
    Desktop& m_desktop;
    GameListController& m_list;
    RecordEditing& m_editing;
};

} // namespace tessera
