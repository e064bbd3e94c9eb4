#pragma once

#include "mutations/classifications.h"
#include "mutations/grammar.h"

#include <cstdint>  // std::int64_t
#include <map>      // std::map
#include <optional> // std::optional
#include <set>      // std::set
#include <string>   // std::string
#include <vector>   // std::vector

namespace specloom::openapi_diff::mutations {

/// The changes from one document to another, as a multiset of lines: "kind key (name) [index] level place",
/// the place being "-" (source) or "+" (destination) and a JSON pointer; behind it ", part" or ", weighs" and
/// a level, where that is not as usual. Judges the comparison of the
/// program by the values of the documents alone.
class Expectation {
  public:
    Expectation(const Json& before, const Json& after, const Classifications& table);

    [[nodiscard]] std::multiset<std::string> lines();

  private:
    /// An object of one of the documents. Without a value there is none.
    struct Spot {
        const Json* value = nullptr;
        std::string pointer; ///< empty for the root; "?" for an object that the document does not hold

        explicit operator bool() const noexcept { return value != nullptr; }
    };
    struct Pair {
        Spot before;
        Spot after;
    };
    using PairId = std::pair<std::string, std::string>;
    struct Change {
        std::string text; ///< all but the level; empty for one that stands for those between two targets
        int level;
        std::string place{};
        int weight = level;              ///< the level where an addition or removal counts as a whole
        bool isPart = false;             ///< of an addition or removal that does
        std::optional<PairId> targets{}; ///< whose changes are to be listed here, unless they already are
    };
    using Changes = std::vector<Change>;
    /// Where objects stand: a field, an entry of a map, an element of a list.
    struct Scope {
        std::string key;
        std::optional<std::string> name{};
        std::int64_t index = -1;
    };
    /// Objects that references lead to from one place.
    struct Targets {
        std::string section;
        std::string key;
        Pair pair;
        int level = 0;
        int weight = 0;
        Changes changes{};
    };

    void place(Changes& found, const Scope& scope, const std::string& section, const Pair& pair);
    void close(Changes& found, const Scope& scope, const Pair& pair, Changes below);
    void plain(Changes& found, const Scope& scope, const char* action, const Spot& at);
    Changes between(const std::string& section, const std::string& key, const Pair& pair);
    Changes objects(const std::string& section, const std::string& key, const Pair& pair);
    Changes references(const std::string& section, const std::string& key, const Pair& pair);
    void field(Changes& found, const std::string& section, const Field& field, const Pair& pair);
    void value(Changes& found, const std::string& key, const Json* before, const Json* after,
               const Pair& pair);
    void flag(Changes& found, const std::string& key, const Json* before, const Json* after,
              const Pair& pair);
    void maps(Changes& found, const Field& field, const Pair& pair);
    void textMaps(Changes& found, const Field& field, const Pair& entries, const Pair& pair);
    void lists(Changes& found, const Field& field, const Pair& pair);
    void requirements(Changes& found, const Field& field, const Pair& pair, Pair lists);
    void sets(Changes& found, const Field& field, const Json* before, const Json* after, const Pair& pair);
    void extensions(Changes& found, const std::string& key, const Pair& pair);
    void include(Changes& found, const std::string& section, const std::string& key, const Pair& pair,
                 bool isListed);

    [[nodiscard]] Spot target(const std::string& section, const Json& reference, bool inSource) const;
    [[nodiscard]] Spot resolved(const std::string& section, const Spot& spot, bool inSource) const;
    [[nodiscard]] static Spot child(const Spot& spot, const std::string& section, const Field& field);
    [[nodiscard]] static std::string sideOf(const Spot& spot, bool inSource);
    [[nodiscard]] static std::pair<int, int> worst(const Changes& changes);
    void list(const Changes& changes, std::multiset<std::string>& lines);

    const Json& before_;
    const Json& after_;
    const Classifications& table_;
    std::map<PairId, Targets> targets_;
    std::set<PairId> listed_;
};

} // namespace specloom::openapi_diff::mutations
