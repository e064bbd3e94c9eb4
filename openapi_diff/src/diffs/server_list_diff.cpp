#include "openapi_diff/diffs/server_list_diff.h"

#include "openapi_diff/diffs/named_list_diff.h"
#include "openapi_diff/diffs/server_diff.h"

namespace specloom::openapi_diff {

void ServerListDiff::diff(const List* source, const List* destination, DiffContext& context) const {
    diffNamedLists<ServerDiff, std::hash<std::string_view>>(key_, source, destination, &openapi::Server::url,
                                                            context);
}

} // namespace specloom::openapi_diff
