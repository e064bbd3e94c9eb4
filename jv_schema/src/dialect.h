#pragma once

#include "jv_schema/draft.h"

#include <cstdint>       // std::uint8_t, std::uint16_t
#include <memory>        // std::unique_ptr
#include <optional>      // std::optional
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map

namespace specloom::jv::schema {

class Keyword;
struct Site;

/// The groups of keywords that a meta-schema chooses from with `$vocabulary`, as bits of a set. Drafts before
/// 2019-09 have all of them.
enum class Vocabulary : std::uint16_t {
    Core = 1,
    Applicator = 2,
    Unevaluated = 4,
    Validation = 8,
    Format = 16,
    FormatAssertion = 32,
    Content = 64,
    MetaData = 128,
};

using VocabularySet = std::uint16_t;

[[nodiscard]] constexpr VocabularySet bit(Vocabulary vocabulary) noexcept {
    return static_cast<VocabularySet>(vocabulary);
}

/// Which schemas stand below a keyword.
enum class Holds : std::uint8_t {
    Nothing,
    Schema,
    Schemas,         ///< an array of them
    SchemaOrSchemas, ///< one, or an array of them
    SchemaMap,       ///< an object of them
    Dependencies,    ///< an object of schemas and arrays of names
};

/// Makes the object of a keyword; null when there is nothing to do for it.
using KeywordFactory = std::unique_ptr<Keyword> (*)(const Site& site);

/// A row of the table of keywords. Their order is that of evaluation: what is cheap and tells much comes
/// first.
struct KeywordEntry {
    std::string_view name;
    std::uint8_t drafts; ///< set of Draft
    Vocabulary vocabulary;
    Holds holds;
    KeywordFactory make; ///< null for a keyword that only holds schemas or annotates
};

/// The keywords that a schema is written with: those of one draft, or of some of its vocabularies.
class Dialect {
  public:
    Dialect(Draft draft, VocabularySet vocabularies);

    [[nodiscard]] Draft draft() const noexcept { return draft_; }
    [[nodiscard]] bool has(Vocabulary vocabulary) const noexcept {
        return (vocabularies_ & bit(vocabulary)) != 0;
    }
    /// Whether the draft is one of a set.
    [[nodiscard]] bool isOneOf(std::uint8_t drafts) const noexcept { return (bit(draft_) & drafts) != 0; }
    /// Null for a keyword that the dialect does not know. Rows compare by address in the order of the table.
    [[nodiscard]] const KeywordEntry* find(std::string_view keyword) const;

    /// All of a draft.
    [[nodiscard]] static const Dialect& of(Draft draft);
    /// The dialect of a meta-schema's URI (without an empty fragment), if it is that of a draft.
    [[nodiscard]] static const Dialect* byMetaSchema(std::string_view uri);
    /// The vocabulary with this URI, if `draft` knows it; a set of two for the one of 2019-09 that holds both
    /// Applicator and Unevaluated.
    [[nodiscard]] static std::optional<VocabularySet> vocabulary(Draft draft, std::string_view uri);

  private:
    Draft draft_;
    VocabularySet vocabularies_;
    std::unordered_map<std::string_view, const KeywordEntry*> keywords_;
};

} // namespace specloom::jv::schema
