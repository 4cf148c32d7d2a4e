#pragma once

#include "catalogue/catalogue.h"
#include "core/message.h"

#include <QUndoCommand>

namespace tessera {

/// One value of one record, before and after. Both views stay in the catalogue's arena; before may be absent.
class EditCommand : public QUndoCommand
{
public:
    EditCommand(Catalogue& catalogue, std::uint32_t record, Field field, std::string_view after)
        : QUndoCommand(qtTrId("undo_edit_record"))
        , m_catalogue(catalogue)
        , m_record(record)
        , m_field(field)
        , m_before(catalogue.m_records[record][field])
        , m_after(after)
    {
    }

    void undo() override { m_catalogue.put(m_record, m_field, m_before); }
    void redo() override { m_catalogue.put(m_record, m_field, m_after); }

private:
    Catalogue& m_catalogue;
    std::uint32_t m_record;
    Field m_field;
    std::string_view m_before;
    std::string_view m_after;
};

/// Records that are taken out, and come back to their old places.
class RemoveCommand : public QUndoCommand
{
public:
    /// `records` are indexes, rising.
    RemoveCommand(Catalogue& catalogue, std::vector<std::uint32_t> records)
        : QUndoCommand(qtTrId("undo_remove_records"))
        , m_catalogue(catalogue)
        , m_places(std::move(records))
    {
        for (const std::uint32_t place : m_places)
            m_removed.push_back(catalogue.m_records[place]);
    }

    void undo() override { m_catalogue.putBack(m_places, m_removed); }
    void redo() override { m_catalogue.takeOut(m_places); }

private:
    Catalogue& m_catalogue;
    std::vector<std::uint32_t> m_places;
    std::vector<GameRecord> m_removed;
};

} // namespace tessera
