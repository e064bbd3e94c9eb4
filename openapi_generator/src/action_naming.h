#pragma once

#include "jv/jv.h"
#include "openapi/operation_ref.h"

#include <cstdint>     // std::uint8_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator {

/// Where the name of an operation comes from.
enum class NameSource : std::uint8_t {
    Id = 0,        ///< its operationId
    Extension = 1, ///< actionNameOf()
    Url = 2,       ///< its method and URL
};

/// Of "id", "extension" or "url". Throws std::runtime_error "Invalid name source: '{}'" for another text.
[[nodiscard]] NameSource parseNameSource(std::string_view text);

/// Appends the source, or the sources, that a string or an array of strings names. Throws ConfigError "Name
/// sources must be a string or an array thereof" with the value of another kind, std::runtime_error "Element
/// already exists" for a source that is in the list, and what parseNameSource() throws.
void readNameSources(const jv::JV& value, std::vector<NameSource>& list);

/// The name that the first of the sources yields; none when none does. Url always yields one, such as
/// "get_/pets". The name need not be an identifier.
[[nodiscard]] std::optional<std::string> actionName(const std::vector<NameSource>& sources,
                                                    const openapi::OperationRef& ref);

} // namespace specloom::openapi_generator
