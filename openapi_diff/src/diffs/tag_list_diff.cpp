#include "openapi_diff/diffs/tag_list_diff.h"

#include "foundation/keyed_hash.h"
#include "openapi_diff/diffs/named_list_diff.h"
#include "openapi_diff/diffs/tag_diff.h"

namespace specloom::openapi_diff {

void TagListDiff::diff(const List* source, const List* destination, DiffContext& context) const {
    diffNamedLists<TagDiff, KeyedHash>(key_, source, destination, &openapi::Tag::name, context);
}

} // namespace specloom::openapi_diff
