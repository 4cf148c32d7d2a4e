#pragma once

#include "catalogue/catalogue.h"

#include <QUndoCommand>

namespace tessera {

/// One value of one record, before and after. Both views stay in the catalogue's arena; before may be absent.
class EditCommand : public QUndoCommand
{
public:
    EditCommand(Catalogue& catalogue, std::uint32_t record, Field field, std::string_view after);

    void undo() override;
    void redo() override;

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
    RemoveCommand(Catalogue& catalogue, std::vector<std::uint32_t> records);

    void undo() override;
    void redo() override;

private:
    Catalogue& m_catalogue;
    std::vector<std::uint32_t> m_places;
    std::vector<GameRecord> m_removed;
};

} // namespace tessera
