#include "catalogue/recordcommands.h"

#include "core/message.h"

namespace tessera {

EditCommand::EditCommand(Catalogue& catalogue, std::uint32_t record, Field field, std::string_view after)
    : QUndoCommand(qtTrId("undo_edit_record"))
    , m_catalogue(catalogue)
    , m_record(record)
    , m_field(field)
    , m_before(catalogue.m_records[record][field])
    , m_after(after)
{
}

void EditCommand::undo()
{
    m_catalogue.put(m_record, m_field, m_before);
}

void EditCommand::redo()
{
    m_catalogue.put(m_record, m_field, m_after);
}

RemoveCommand::RemoveCommand(Catalogue& catalogue, std::vector<std::uint32_t> records)
    : QUndoCommand(qtTrId("undo_remove_records"))
    , m_catalogue(catalogue)
    , m_places(std::move(records))
{
    m_removed.reserve(m_places.size());
    for (const std::uint32_t place : m_places)
        m_removed.push_back(catalogue.m_records[place]);
}

void RemoveCommand::undo()
{
    m_catalogue.putBack(m_places, m_removed);
}

void RemoveCommand::redo()
{
    m_catalogue.takeOut(m_places);
}

} // namespace tessera
