#pragma once

#include "bios/biosentry.h"
#include "catalogue/listxmlscanner.h"

namespace tessera {

/// Takes what an emulator prints for -listxml, piece by piece, and keeps the BIOS sets in it.
class BiosSets
{
public:
    enum class Machines { BiosOnly, All };

    explicit BiosSets(Machines which)
        : m_which(which)
    {
    }

    void take(std::string_view printed);
    /// There is no more.
    void end();
    /// One entry for each machine with several BIOS to choose from, each of them beneath it.
    const BiosEntries& entries() const { return m_entries; }

private:
    void takeMachines();
    void takeMachine(std::string_view text);

    Machines m_which;
    ListxmlScanner m_scanner{ElementName::Undecided};
    BiosEntries m_entries;
};

} // namespace tessera
