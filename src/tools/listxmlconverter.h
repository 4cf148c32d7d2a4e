#pragma once

#include "core/failure.h"
#include "catalogue/listxmlscanner.h"
#include "tools/storetext.h"

#include <QString>

#include <expected>
#include <optional>

namespace tessera {

class TitleTable;
struct MachineFields;

/// Which sets are left out: each that carries one of these flags.
struct ConversionOptions {
    bool withoutBios = false;
    bool withoutMechanical = false;
    bool withoutDevices = false;
};

/// Bytes of a list or a store: nothing that is converted may be larger than positions of 32 bits reach.
inline constexpr std::size_t convertedSizeLimit = (std::size_t{1} << 31) - 1;

/// Bytes. The largest element of a real list has about 2 MB: one that does not end here is none, and the scan
/// ends at it as at one that is cut off.
inline constexpr std::size_t elementLimit = std::size_t{64} << 20;

/// The element at which the scan of a list ended.
struct StoppedAt {
    enum class Why { CutOff, TooLong };
    Why why;
    QString set;
};

/// A complete store.
struct ConvertedList {
    StoreText text;
    std::size_t games = 0;
    bool isWhole = false; ///< the scan did not stop, and the list ends with an end tag
    /// Where the scan ended before the list's end; what came before is in the text.
    std::optional<StoppedAt> stopped;

    /// The part of the list that follows.
    void append(ConvertedList next);
};

/// Makes a store of an emulator's list while the list comes in, piece by piece. It holds no more of it than
/// the element that it is in.
class ListxmlConverter
{
public:
    /// `titles` outlives the converter.
    ListxmlConverter(const TitleTable& titles, ConversionOptions options,
                     ElementName name = ElementName::Undecided, CandidateSearch search = candidateSearch());

    /// Room for the next piece, of at least `count` bytes; extend() says how many were put there.
    std::span<char> room(std::size_t count) { return m_scanner.room(count); }
    std::expected<void, Failure> extend(std::size_t count);
    std::expected<void, Failure> feed(std::string_view piece);

    std::expected<ConvertedList, Failure> finish();

    /// Written so far.
    std::size_t games() const { return m_store.objects(); }
    /// A value is all that follows in the whole text: what was fed must be its end.
    bool needsRest() const { return !m_restStarts.empty(); }
    /// The scan has ended already.
    const std::optional<StoppedAt>& stopped() const { return m_stopped; }
    /// Elements were taken to be called "machine", but a "<game " stands in the text as well: one that can be
    /// read again is begun again with that name.
    bool shouldBeginAgain() const { return m_scanner.sawGame(); }

private:
    std::expected<void, Failure> convertElements();
    void stopAt(std::string_view element, StoppedAt::Why why);
    bool isLeftOut(const ListxmlElement& element) const;
    std::expected<void, Failure> write(const MachineFields& fields);
    std::optional<std::string_view> japaneseTitle(std::string_view name);
    void rememberRest();
    std::string copiedRest(std::vector<std::size_t>& starts) const;
    bool endsWithEndTag() const;

    const TitleTable& m_titles;
    ConversionOptions m_options;
    ListxmlScanner m_scanner;
    StoreText m_store;
    std::size_t m_written = 0; ///< bytes of values
    std::optional<StoppedAt> m_stopped;
    std::array<std::string, fieldCount> m_rooms;
    std::string m_lastBytes; ///< of the text that has come

    // The text from the first element on that has neither name nor cloneof, and where in it each such begins.
    std::string m_rest;
    std::vector<std::size_t> m_restStarts;
};

} // namespace tessera
