#pragma once

#include "jv/pos.h"
#include "openapi/node.h"
#include "openapi_diff/config_key.h"

#include <cstdint>     // std::int32_t, std::int64_t, std::uint8_t
#include <string_view> // std::string_view

namespace specloom::openapi_diff {

struct Comparison;

/// What happened, and to what: a node, a field ("property"), an entry of a map ("key"), an element of a list,
/// or an extension.
enum class ChangeKind : std::int32_t {
    Included = 0, ///< no change of its own: stands for those of `Change::comparison`; reports never see it
    Added = 1,
    Removed = 2,
    Modified = 3,
    PropertyAdded = 4,
    PropertyRemoved = 5,
    PropertyModified = 6,
    KeyAdded = 7,
    KeyRemoved = 8,
    KeyModified = 9,
    ElementAdded = 10,
    ElementRemoved = 11,
    ElementModified = 12,
    ExtensionAdded = 13,
    ExtensionRemoved = 14,
    ExtensionModified = 15,
};

/// "added", "property_added" and so on. Included and numbers outside the enumeration are an unreachable path.
[[nodiscard]] std::string_view changeKindText(ChangeKind kind);

/// Whether it tells of an `x-` member.
[[nodiscard]] constexpr bool isOfExtension(ChangeKind kind) noexcept {
    return kind == ChangeKind::ExtensionAdded || kind == ChangeKind::ExtensionRemoved ||
           kind == ChangeKind::ExtensionModified;
}

/// What a change means to those who use the API; a larger value is worse.
enum class ChangeLevel : std::int32_t {
    None = 0,
    NonFunctional = 1,
    NonBreaking = 2,
    Breaking = 3,
    Nested = 4, ///< as bad as the worst of what lies below; only while documents are compared
};

/// "none", "non-functional", "non-breaking", "breaking". Nested and numbers outside are an unreachable path,
/// here and below.
[[nodiscard]] std::string_view changeLevelText(ChangeLevel level);
/// "No changes", "Non-functional changes", "Non-breaking changes", "Breaking changes".
[[nodiscard]] std::string_view changeLevelHeading(ChangeLevel level);

/// Which of the two documents a position lies in.
enum class DocumentSide : std::uint8_t { Source, Destination };

/// An entry of a map that what changed lies in. Lives as long as the comparison.
struct EnclosingEntry {
    ConfigKey key;         ///< the map
    std::string_view name; ///< of the entry
    const openapi::Node* source;
    const openapi::Node* destination;

    [[nodiscard]] bool isOnBothSides() const noexcept { return source != nullptr && destination != nullptr; }
};

/// One difference between two documents. Names and nodes lie in the trees of the documents, which must
/// outlive it.
struct Change {
    ChangeKind kind = ChangeKind::Included;
    ChangeLevel level = ChangeLevel::None;
    /// The level in a reading that takes an addition or removal as a whole: what an added or removed thing
    /// consists of does not count beside it. Equal to `level` where nothing was added or removed below.
    ChangeLevel weight = ChangeLevel::None;
    ConfigKey key{};     ///< the field concerned; for an extension, the field that holds its node
    bool isPart = false; ///< below something that was added or removed, and so part of that change
    DocumentSide side = DocumentSide::Destination; ///< of `file` and `pos`
    const openapi::Node* node = nullptr;           ///< of the destination where there is one
    std::string_view name{};                       ///< key of a map, or name of an extension
    std::int64_t index = -1;                       ///< counted from 0; -1 for none
    std::string_view file{};                       ///< empty for a document that came from no file
    jv::Pos pos{};                                 ///< of the node, or the nearest around it that has one
    /// The nearest path item around, as the entry of the paths, webhooks, components or callback that it was
    /// compared for; null when there is none.
    const EnclosingEntry* pathItem = nullptr;
    const EnclosingEntry* operation = nullptr; ///< the nearest one below that; null when there is none
    const Comparison* comparison = nullptr;    ///< Included only; null where they are listed elsewhere
};

} // namespace specloom::openapi_diff
