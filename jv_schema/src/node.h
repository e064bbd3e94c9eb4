#pragma once

#include "jv/jv.h"
#include "jv_schema/resource.h"

#include <cstdint>     // std::uint8_t
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv::schema {

class Evaluation;

/// A set of kinds of value.
using KindSet = std::uint8_t;

[[nodiscard]] constexpr KindSet only(Kind kind) noexcept {
    return static_cast<KindSet>(1U << static_cast<unsigned>(kind));
}

inline constexpr KindSet everyKind = 0x3f;

/// One keyword of one schema, compiled; immutable.
class Keyword {
  public:
    /// `kinds` are those of the instances that the keyword has to look at, `accepts` those of the instances
    /// that it does not refuse out of hand.
    Keyword(const Place& owner, std::string_view name, KindSet kinds = everyKind, KindSet accepts = everyKind)
        : owner_(&owner), name_(name), kinds_(kinds), accepts_(accepts) {}
    Keyword(const Keyword&) = delete;
    Keyword& operator=(const Keyword&) = delete;
    virtual ~Keyword() = default;

    /// Whether an instance satisfies the keyword. Only asked for those of kinds(), and for those that it does
    /// not accept, to say so. Faults go to `evaluation` when it
    /// collects them; when it does not, the first one ends the work.
    [[nodiscard]] virtual bool evaluate(const JV& instance, Evaluation& evaluation) const = 0;

    /// The schema that holds the keyword.
    [[nodiscard]] const Place& owner() const noexcept { return *owner_; }
    [[nodiscard]] std::string_view name() const noexcept { return name_; }
    [[nodiscard]] KindSet kinds() const noexcept { return kinds_; }
    [[nodiscard]] KindSet accepts() const noexcept { return accepts_; }

  private:
    const Place* owner_;
    std::string_view name_;
    KindSet kinds_;
    KindSet accepts_;
};

/// One schema, compiled; immutable after the compiler has finished.
struct Node {
    struct Entry {
        KindSet kinds;
        const Keyword* keyword;
    };

    const Place* place = nullptr;
    /// The schema that stands for this one, which is a mere reference to it.
    const Node* alias = nullptr;
    /// Instances of other kinds are invalid without a further look; none for the schema false.
    KindSet accepts = everyKind;
    /// Whether a keyword wants to know what the others have evaluated.
    bool tracks = false;
    bool isShared = false;      ///< whether a reference leads here, so that there may be many ways
    std::vector<Entry> entries; ///< what is to be asked to decide; those of the alias, if there is one
    std::vector<std::unique_ptr<const Keyword>> keywords;
};

} // namespace specloom::jv::schema
