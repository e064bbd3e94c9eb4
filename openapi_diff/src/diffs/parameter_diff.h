#pragma once

#include "openapi/parameter.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `parameter`, for two parameters of any class: the location of a component may change. What
/// the class of a parameter does not have is a flag that is not set.
class ParameterDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Parameter;
    void diff(const openapi::Parameter* source, const openapi::Parameter* destination,
              DiffContext& context) const;
};

/// The same for two parameters of one location.
template <typename P>
class LocatedParameterDiff final : public NodeDiff {
  public:
    using NodeClass = P;
    void diff(const P* source, const P* destination, DiffContext& context) const {
        ParameterDiff().diff(source, destination, context);
    }
};

using PathParameterDiff = LocatedParameterDiff<openapi::PathParameter>;
using QueryParameterDiff = LocatedParameterDiff<openapi::QueryParameter>;
using HeaderParameterDiff = LocatedParameterDiff<openapi::HeaderParameter>;
using CookieParameterDiff = LocatedParameterDiff<openapi::CookieParameter>;

} // namespace specloom::openapi_diff
