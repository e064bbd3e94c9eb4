#pragma once

#include "foundation/validators/validators.h"

#include <map>         // std::map
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::test_support {

using FormatValidator = bool (*)(std::string_view) noexcept;

/// All validators, by the name of the format where there is one.
inline const std::map<std::string, FormatValidator>& formatValidators() {
    static const std::map<std::string, FormatValidator> all = {
        {"date", isDate},
        {"date-time", isDateTime},
        {"duration", isDuration},
        {"email", isEmail},
        {"hostname", isHostname},
        {"ipv4", isIPv4},
        {"ipv6", isIPv6},
        {"json-pointer", isJSONPointer},
        {"language", isLanguageCode},
        {"media-type", isMediaType},
        {"regex", isRegex},
        {"relative-json-pointer", isRelativeJSONPointer},
        {"time", isTime},
        {"transfer-encoding", isTransferEncoding},
        {"uri", isURI},
        {"uri-reference", isURIReference},
        {"uri-template", isURITemplate},
        {"uuid", isUUID},
    };
    return all;
}

} // namespace specloom::test_support
