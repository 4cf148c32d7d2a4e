#pragma once

#include "catalogue/arrangedlist.h"
#include "core/message.h"

#include <QString>

namespace tessera {

enum class Comparison : std::uint8_t { Is, IsNot, Contains, ContainsNot, BeginsWith, EndsWith };

struct ComparisonRow {
    Comparison comparison;
    const char* label; ///< key of its text
};

// clang-format off
inline constexpr std::array comparisons{
    ComparisonRow{Comparison::Is,          textKey("compare_is")},
    ComparisonRow{Comparison::IsNot,       textKey("compare_isnot")},
    ComparisonRow{Comparison::Contains,    textKey("compare_contains")},
    ComparisonRow{Comparison::ContainsNot, textKey("compare_containsnot")},
    ComparisonRow{Comparison::BeginsWith,  textKey("compare_begins")},
    ComparisonRow{Comparison::EndsWith,    textKey("compare_ends")},
};
// clang-format on

/// One row of the filter panel. Values are compared as a search compares them, without case, accents, width.
struct FilterRule {
    Field field = Field::Title;
    Comparison comparison = Comparison::Contains;
    QString value;
};

struct FilterRules {
    bool all = true; ///< every rule, or any of them
    std::vector<FilterRule> rules;

    bool isEmpty() const { return rules.empty(); }
};

/// Nothing where no rule is given.
Predicate predicateOf(const FilterRules& rules);

/// maker = text, exactly; an absent maker equals none.
Predicate makerIs(const QString& maker);

} // namespace tessera
