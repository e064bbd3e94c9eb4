#pragma once

#include "openapi/examples.h"
#include "openapi_diff/diffs/example_diff.h"

namespace specloom::openapi_diff {

/// The `example` and the `examples` of a parameter, a header or a media type, by their two keys.
class ExamplesDiff final : public NodeDiff {
  public:
    ExamplesDiff(ConfigKey example, ConfigKey examples) noexcept : example_(example), examples_(examples) {}

    template <typename N>
    void diff(const N* source, const N* destination, DiffContext& context) const {
        context.field(example_, source, destination, [](const N& node) { return node.examples().single(); });
        diffMaps<ExampleDiff>(examples_, source, destination, context,
                              [](const N& node) -> const openapi::NodeMap& { return node.examples().map(); });
    }

  private:
    ConfigKey example_;
    ConfigKey examples_;
};

} // namespace specloom::openapi_diff
