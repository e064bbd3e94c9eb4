#include "openapi_diff/diffs/server_list_diff.h"

#include "foundation/keyed_hash.h"
#include "openapi_diff/diffs/named_list_diff.h"
#include "openapi_diff/diffs/server_diff.h"

namespace specloom::openapi_diff {

void ServerListDiff::diff(const List* source, const List* destination, DiffContext& context) const {
    diffNamedLists<ServerDiff, KeyedHash>(key_, source, destination, &openapi::Server::url, context);
}

} // namespace specloom::openapi_diff
