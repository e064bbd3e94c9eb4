#pragma once

#include "openapi_diff/change.h"

#include <cstddef>     // std::size_t
#include <cstdint>     // std::int64_t
#include <string_view> // std::string_view

namespace specloom::openapi_diff {

/// One open level of a comparison. The changes of all levels stand in one sequence, which the DiffContext
/// keeps: those of a level are the ones from `begin` on, and closing the level leaves what it forwards where
/// it stands. So a change costs the same however deep it lies.
struct DiffScope {
    ConfigKey key{};
    std::string_view name{}; ///< key of a map; empty for a field
    bool isEntry = false;    ///< of a map: its key may be empty too
    std::int64_t index = -1; ///< element of a list, counted from 0; -1 for a field
    const openapi::Node* source = nullptr;
    const openapi::Node* destination = nullptr;
    std::size_t begin = 0;                     ///< of its changes in the sequence
    const EnclosingEntry* pathItem = nullptr;  ///< of its changes: Change::pathItem
    const EnclosingEntry* operation = nullptr; ///< Change::operation
    bool inPart = false;                       ///< within something that was added or removed as a whole

    // Of the changes behind the first one, kept up to date so that closing need not look at them again.
    ChangeLevel restLevel = ChangeLevel::None;
    ChangeLevel restWeight = ChangeLevel::None; ///< of those that are no part of another
    bool restAllAdded = true;                   ///< whether their kinds tell of additions only
    bool restAllRemoved = true;

    [[nodiscard]] bool isItem() const noexcept { return isEntry || index != -1; }
};

} // namespace specloom::openapi_diff
