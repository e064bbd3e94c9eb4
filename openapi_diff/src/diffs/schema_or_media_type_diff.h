#pragma once

#include "openapi/schema_or_content.h"
#include "openapi_diff/diffs/media_type_diff.h"
#include "openapi_diff/diffs/schema_diff.h"

namespace specloom::openapi_diff {

/// The `schema` and the `content` of a parameter or a header, by their two keys. A `content` has one entry,
/// and pairs with one of the same media type only: that a schema took its place, or that of another media
/// type, is an addition and a removal.
class SchemaOrMediaTypeDiff final : public NodeDiff {
  public:
    SchemaOrMediaTypeDiff(ConfigKey schema, ConfigKey content) noexcept
        : schema_(schema), content_(content) {}

    template <typename N>
    void diff(const N* source, const N* destination, DiffContext& context) const {
        diff(childOf(source, value<N>), childOf(destination, value<N>), context);
    }
    void diff(const openapi::SchemaOrContent* source, const openapi::SchemaOrContent* destination,
              DiffContext& context) const;

  private:
    template <typename N>
    static const openapi::SchemaOrContent& value(const N& node) {
        return node.value();
    }

    ConfigKey schema_;
    ConfigKey content_;
};

} // namespace specloom::openapi_diff
