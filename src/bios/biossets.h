#pragma once

#include "bios/biosentry.h"

#include <string>
#include <string_view>

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
    /// One entry for each machine with several BIOS to choose from, each of them beneath it.
    const BiosEntries& entries() const { return m_entries; }

private:
    void takeMachine(std::string_view machine);

    Machines m_which;
    std::string m_rest; ///< of a machine that is not complete
    BiosEntries m_entries;
};

} // namespace tessera
