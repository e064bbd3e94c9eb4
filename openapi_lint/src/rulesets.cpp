#include "openapi_lint/rulesets.h"

#include "foundation/registry.h"

#include <optional> // std::optional

namespace specloom::openapi_lint {
namespace {

using Level = std::optional<Severity>;
constexpr Level error = Severity::Error;
constexpr Level warn = Severity::Warning;
constexpr Level none;

struct Row {
    std::string_view id;
    Level all;
    Level recommended;
    Level strict;
    Level jsonApi;
};

// clang-format off
/// Which ruleset holds which rule, and how much its findings weigh there.
constexpr Row rows[] = {
//   id, all, recommended, strict, json-api
    {"audience-defined", error, none, error, none},
    {"contact-defined", error, none, error, none},
    {"id-defined", error, none, error, none},
    {"info-defined", error, error, error, none},
    {"json-api/content-type", none, none, none, error},
    {"json-api/resource-type-unique", none, none, none, error},
    {"json-api/schema-validation", none, none, none, error},
    {"json-schema-validation", error, none, error, none},
    {"license-defined", error, none, error, none},
    {"no-content-response-defined", error, error, error, none},
    {"openapi-json-schema-validation", error, error, error, none},
    {"operation-description-defined", error, error, error, none},
    {"operation-document-not-primitive", warn, none, warn, none},
    {"operation-id-defined", error, error, error, none},
    {"operation-id-unique", error, error, error, none},
    {"operation-rate-limiting-defined", warn, warn, warn, none},
    {"operation-security-defined", error, warn, warn, none},
    {"operation-success-response", error, error, error, none},
    {"operation-tags-defined", error, warn, warn, none},
    {"parameter-description-defined", error, warn, warn, none},
    {"parameter-naming", error, warn, warn, none},
    {"parameters-unique", error, error, error, none},
    {"path-parameters-defined", error, error, error, none},
    {"path-parameters-on-items", error, warn, warn, none},
    {"paths-max-count", error, warn, warn, none},
    {"paths-max-depth", error, warn, warn, none},
    {"paths-sorted", error, none, error, none},
    {"paths-unique", error, none, error, none},
    {"paths-well-formed", error, warn, error, none},
    {"safe-markdown", error, warn, error, none},
    {"schema-constraints", warn, warn, warn, none},
    {"schema-datetime-suffix", error, warn, error, none},
    {"schema-discriminator-defined", error, warn, error, none},
    {"schema-enum-naming", error, none, error, none},
    {"schema-enum-no-duplicates", error, error, error, none},
    {"schema-enum-types", error, error, error, none},
    {"schema-example-defined", error, warn, error, none},
    {"schema-format-defined", error, error, error, none},
    {"schema-format-type-mismatch", error, error, error, none},
    {"schema-no-additional-properties", error, error, error, none},
    {"schema-property-naming", error, none, error, none},
    {"server-urls", error, warn, error, none},
    {"servers-defined", error, warn, error, none},
    {"spell-check", warn, warn, warn, none},
    {"standard-media-types", error, warn, error, none},
    {"standard-response-codes", error, error, error, none},
    {"standard-response-errors", warn, none, warn, none},
    {"tag-description-defined", warn, warn, warn, none},
    {"tags-sorted", error, none, error, none},
    {"tags-unique", error, warn, error, none},
    {"unambiguous-response-codes", error, error, error, none},
    {"unused-request-body", error, warn, error, none},
    {"unused-shared-component", error, warn, error, none},
};
// clang-format on

/// The kinds of schema whose constraints "recommended" asks for.
std::unique_ptr<jv::JV> recommendedConstraints() {
    std::unique_ptr<jv::JV> options = jv::JV::newObject();
    options->setBoolean("integer", false);
    options->setBoolean("number", true);
    options->setBoolean("string", true);
    options->setBoolean("array", false);
    options->setBoolean("object", false);
    return options;
}

using RulesetEntry = Maker<Ruleset>;

/// In byte-wise order of the names.
constexpr Registry rulesetRegistry({
    RulesetEntry::of<AllRuleset>("all"),
    RulesetEntry::of<JSONAPIRuleset>("json-api"),
    RulesetEntry::of<RecommendedRuleset>("recommended"),
    RulesetEntry::of<StrictRuleset>("strict"),
});

} // namespace

AllRuleset::AllRuleset() : Ruleset("all") {
    for (const Row& row : rows)
        if (row.all)
            add(row.id, *row.all);
}

RecommendedRuleset::RecommendedRuleset() : Ruleset("recommended") {
    for (const Row& row : rows)
        if (row.recommended)
            add(row.id, *row.recommended,
                row.id == "schema-constraints" ? recommendedConstraints() : nullptr);
}

StrictRuleset::StrictRuleset() : Ruleset("strict") {
    for (const Row& row : rows)
        if (row.strict)
            add(row.id, *row.strict);
}

JSONAPIRuleset::JSONAPIRuleset() : Ruleset("json-api") {
    for (const Row& row : rows)
        if (row.jsonApi)
            add(row.id, *row.jsonApi);
}

std::unique_ptr<Ruleset> findRuleset(std::string_view name) {
    return rulesetRegistry.get(name, "Ruleset not found: {}").make();
}

std::vector<std::string_view> rulesetNames() {
    return rulesetRegistry.names();
}

} // namespace specloom::openapi_lint
