#pragma once

#include "openapi/parameter_list.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// The parameters of an operation or a path item. Those of one location and name belong together, whether
/// they stand there or are referred to.
class ParameterListDiff final : public NodeDiff {
  public:
    explicit ParameterListDiff(ConfigKey key) noexcept : key_(key) {}

    void diff(const openapi::ParameterList* source, const openapi::ParameterList* destination,
              DiffContext& context) const;

  private:
    ConfigKey key_;
};

} // namespace specloom::openapi_diff
