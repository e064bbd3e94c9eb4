#include "fuzz/tree_check.h"

#include "fuzz/check.h"
#include "openapi/node_visitor.h"
#include "openapi/reader.h"
#include "openapi/reference.h"
#include "openapi/writer.h"

#include <cstdlib>   // std::abort
#include <exception> // std::exception

namespace specloom::fuzz {

namespace {

/// Each node is reached from the root by its parents, and whoever refers to it is known to it.
class LinkChecker final : public openapi::NodeVisitHandler {
  public:
    using NodeVisitHandler::visit;

    void visit(const openapi::Node& node) override {
        require(node.parent() != nullptr || node.type() == openapi::NodeType::OpenAPI, "a node has a parent");
        for (const openapi::Reference* reference = node.firstReference(); reference != nullptr;
             reference = reference->nextReference())
            require(reference->resolve() == &node, "a reference knows its target");
    }
};

[[noreturn]] void fail(const std::string& what, const jv::JVDocument& document) {
    require(false, what + ":\n" + jv::documentToText(document, jv::DocumentFormat::Yaml));
    std::abort();
}

} // namespace

std::unique_ptr<openapi::ReadResult> readIfGood(std::unique_ptr<jv::JVDocument> document) {
    static const auto formats = std::make_shared<const openapi::SchemaFormatRegistry>();
    try {
        return openapi::read(std::move(document), formats);
    } catch (const std::exception& error) {
        require(!std::string_view(error.what()).empty(), "what is refused is refused with a text");
        return nullptr;
    }
}

void checkTree(std::unique_ptr<jv::JVDocument> document) {
    const auto first = readIfGood(std::move(document));
    if (first == nullptr)
        return;
    LinkChecker checker;
    openapi::NodeVisitor(checker).visit(first->root());
    for (const bool sourceOrder : {false, true}) {
        const auto writer = [&](const openapi::ReadResult& result) {
            return sourceOrder ? openapi::Writer(result) : openapi::Writer();
        };
        const auto write = [&](const openapi::ReadResult& result) {
            auto written = writer(result).write(result.root());
            written->reindex();
            return written;
        };
        const auto second = readIfGood(write(*first));
        if (second == nullptr)
            fail("what was written is read", *write(*first));
        const auto twice = write(*second);
        if (!twice->root()->equals(*second->source().root()))
            fail("what was written is written alike again", second->source());
    }
}

} // namespace specloom::fuzz
