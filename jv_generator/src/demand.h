#pragma once

#include "jv_generator/gen_base.h"
#include "jv_generator/schema_graph.h"

#include <cstddef> // std::size_t
#include <cstdint> // std::uint8_t, std::uint32_t, std::uint64_t
#include <memory>  // std::unique_ptr
#include <string>  // std::string
#include <vector>  // std::vector

namespace specloom::jv_generator {

/// What need not be made is left out when it has more values and bytes.
inline constexpr std::uint64_t modestOptional = 10'000;

/// What is asked of one value: that it fits some schemas at once. Either a choice between demands that say
/// more, or a part that makes the value.
struct Demand {
    enum class State : std::uint8_t { New, Choice, Part, Impossible };
    enum class Choosing : std::uint8_t {
        Any,
        First,
        Kinds ///< one alternative for each kind of value, null rarely
    };

    /// No value is nested so deep: there is none.
    static constexpr std::uint32_t endless = UINT32_MAX;

    // What is looked at for each value stands together.
    State state = State::New;
    Choosing choosing = Choosing::Any;
    bool isMeasured = false;
    bool isUnknown = false;   ///< too much to look at: taken for an easy one
    bool isContainer = false; ///< whether the part's values hold others
    bool mayBeNull = false;
    std::uint32_t height = endless;  ///< levels of containers that a value has at least
    std::uint64_t size = UINT64_MAX; ///< values and bytes of texts that it has at least
    std::unique_ptr<GenBase> part;
    std::vector<Demand*> alternatives;

    std::vector<SchemaId> schemas; ///< in ascending order
    std::size_t measured =
        1;              ///< alternatives of a choice of the first that counted; all do for other choices
    std::string reason; ///< why it is impossible
    const jv::JV* place = nullptr; ///< the schema of the bundle that says so
};

} // namespace specloom::jv_generator
