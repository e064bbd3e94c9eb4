#include "openapi/reader.h"

#include "foundation/file_system.h"
#include "jv/deser.h"
#include "openapi/reader/readers.h"

#include <stdexcept> // std::invalid_argument
#include <utility>   // std::move

namespace specloom::openapi {

std::unique_ptr<ReadResult> read(std::unique_ptr<jv::JVDocument> document,
                                 std::shared_ptr<const SchemaFormatRegistry> formats) {
    if (formats == nullptr)
        throw std::invalid_argument("Schema format registry must be provided");
    NodePool::expect(document->sourceSize());
    auto result = std::make_unique<ReadResult>(std::move(document), std::move(formats));
    ReaderContext context(*result);
    readOpenAPI(context, result->root(), *result->source().root());
    context.resolvePending();
    context.throwErrors();
    return result;
}

std::unique_ptr<ReadResult> readFile(const FileSystem& files, std::string_view path,
                                     std::shared_ptr<const SchemaFormatRegistry> formats) {
    return read(jv::loadDocument(files, path).document, std::move(formats));
}

std::unique_ptr<ReadResult> readFile(std::string_view path,
                                     std::shared_ptr<const SchemaFormatRegistry> formats) {
    return readFile(LocalFileSystem(), path, std::move(formats));
}

} // namespace specloom::openapi
