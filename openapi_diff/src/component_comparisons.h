#pragma once

#include "openapi/components.h"
#include "openapi_diff/diff_context.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::int64_t
#include <deque>         // std::deque
#include <limits>        // std::numeric_limits
#include <optional>      // std::optional
#include <queue>         // std::priority_queue
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

namespace specloom::openapi_diff {

/// The comparisons of what references lead to, each made once for a pair of objects however many places refer
/// to it.
///
/// Objects refer to one another, in circles too. What a comparison finds depends on the others only through
/// their levels, which are at their lowest at first and only rise: so each is made with what is known of
/// those it meets, and made again when one of them turned out worse. That ends, with the worst level that can
/// be reached from each, and never follows references by recursion.
///
/// The changes of a pair are listed in one place only: those of two components of one name under
/// `components`, all others where the pair was met first.
///
/// Documents whose references all go elsewhere than before could bring every object of the one together with
/// every object of the other. So that the work stays in proportion to the documents, the values below each
/// pair of different names are counted before it is compared, and no such pair is followed once they would be
/// more than `comparisonsOfAll` times those of both documents; that the reference changed is reported all the
/// same.
class ComponentComparisons {
  public:
    /// Far more than any two versions of one document have.
    static constexpr std::size_t comparisonsOfAll = 4;

    explicit ComponentComparisons(DiffContext& context) noexcept : context_(context) {}
    ComponentComparisons(const ComponentComparisons&) = delete;
    ComponentComparisons& operator=(const ComponentComparisons&) = delete;

    /// Compares all components that have the same name in both documents. The first thing to do.
    void compareComponents(const openapi::Components& source, const openapi::Components& destination);

    /// What differs between two entries of the components, of one name.
    [[nodiscard]] const Comparison& ofComponents(const openapi::Node& source,
                                                 const openapi::Node& destination);

    /// Lets count in the open scope what differs between the objects behind two places, of which at least one
    /// holds a reference.
    void include(const openapi::Node& source, const openapi::Node& destination);

  private:
    struct Pair {
        const openapi::Node* source;
        const openapi::Node* destination;
        friend bool operator==(const Pair&, const Pair&) = default;
    };
    struct PairHash {
        [[nodiscard]] std::size_t operator()(const Pair& pair) const noexcept;
    };
    struct Unit {
        Pair nodes;
        Pair place{};           ///< where it was met first; none for components of one name
        std::int64_t order = 0; ///< that of units which others depend on is lower, as far as circles allow
        Comparison comparison{};
        std::vector<Unit*> dependents{}; ///< made with the present level
        bool isMade = false;
        bool isWaiting = false;
    };

    [[nodiscard]] Pair targetsOf(const openapi::Node& source, const openapi::Node& destination) const;
    [[nodiscard]] Unit& unitOf(const Pair& nodes, const Pair& place);
    /// Whether the budget allows for the comparison of two objects; takes it from there if so.
    [[nodiscard]] bool afford(const Pair& nodes);
    [[nodiscard]] std::size_t valuesIn(const openapi::Node& node);
    void enqueue(Unit& unit);
    [[nodiscard]] Unit* nextWaiting();
    void settle();
    void evaluate(Unit& unit);

    DiffContext& context_;
    bool hasAliases_ = true;            ///< whether components are references themselves
    std::optional<std::size_t> budget_; ///< values that may still be compared in pairs of different names
    std::unordered_map<const openapi::Node*, std::size_t> sizes_; ///< valuesIn() of those that were asked for
    std::unordered_map<Pair, Unit, PairHash> units_;
    std::int64_t lowestOrder_ = 0;
    std::int64_t highestOrder_ = 0;

    // What waits: first all that were never made, then the others in rounds, each in order, so that one that
    // depends on many is not made again for each of them.
    struct Later {
        [[nodiscard]] bool operator()(const Unit* a, const Unit* b) const noexcept {
            return a->order > b->order;
        }
    };
    std::deque<Unit*> fresh_;
    std::priority_queue<Unit*, std::vector<Unit*>, Later> round_;
    std::vector<Unit*> nextRound_;
    std::int64_t position_ = std::numeric_limits<std::int64_t>::min(); ///< of the round: the order it is at
    Unit* evaluated_ = nullptr;                                        ///< the one that is being made
};

} // namespace specloom::openapi_diff
