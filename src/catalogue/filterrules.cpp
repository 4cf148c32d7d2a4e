#include "catalogue/filterrules.h"

#include "catalogue/search/folding.h"

#include <algorithm>

namespace tessera {

namespace {

struct FoldedRule {
    Field field;
    Comparison comparison;
    std::string value;
};

bool fits(const FoldedRule& rule, std::string_view value)
{
    switch (rule.comparison) {
    case Comparison::Is:
        return value == rule.value;
    case Comparison::IsNot:
        return value != rule.value;
    case Comparison::Contains:
        return value.find(rule.value) != std::string_view::npos;
    case Comparison::ContainsNot:
        return value.find(rule.value) == std::string_view::npos;
    case Comparison::BeginsWith:
        return value.starts_with(rule.value);
    case Comparison::EndsWith:
        return value.ends_with(rule.value);
    }
    return false;
}

} // namespace

Predicate predicateOf(const FilterRules& rules)
{
    if (rules.isEmpty())
        return {};
    std::vector<FoldedRule> foldedRules;
    foldedRules.reserve(rules.rules.size());
    for (const FilterRule& rule : rules.rules)
        foldedRules.push_back({rule.field, rule.comparison, folded(rule.value.toStdString())});
    return [foldedRules = std::move(foldedRules), all = rules.all](const GameRecord& record) {
        const auto holds
            = [&record](const FoldedRule& rule) { return fits(rule, folded(record[rule.field])); };
        return all ? std::ranges::all_of(foldedRules, holds) : std::ranges::any_of(foldedRules, holds);
    };
}

Predicate makerIs(const QString& maker)
{
    return [maker = maker.toStdString()](const GameRecord& record) {
        return record.has(Field::Maker) && record[Field::Maker] == maker;
    };
}

} // namespace tessera
