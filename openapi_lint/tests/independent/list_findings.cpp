// list_findings FILE RULE...: what the rules, with their default options, find in a document, as a JSON
// object
//
//   {"RULE": [["JSON pointer of the object", "message"], ...], ...}
//
// in the order of the reports; `null` when the document cannot be read.

#include "jv/deser.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_registry.h"
#include "test_support/read_tree.h"

#include <cstdint>   // std::uint64_t
#include <exception> // std::exception
#include <iostream>  // std::cout, std::cerr
#include <map>       // std::map
#include <memory>    // std::unique_ptr
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <utility>   // std::pair

namespace specloom::openapi_lint {
namespace {

using Place = std::pair<std::uint64_t, std::uint64_t>;

/// A report tells lines and columns. No two objects of a document begin at the same one.
class Places final : public openapi::NodeVisitHandler {
  public:
    explicit Places(const openapi::ReadResult& document) : document_(document) {}

    using openapi::NodeVisitHandler::visit;
    void visit(const openapi::Node& node) override { add(node); }
    /// A walk meets what references lead to, and never themselves.
    void visit(const openapi::Paths& paths) override {
        for (const auto& entry : paths)
            add(*entry.value);
    }
    [[nodiscard]] const std::string& pointerOf(const LintResult& result) const {
        return pointers_.at({result.line, result.column});
    }

  private:
    void add(const openapi::Node& node) {
        const jv::Pos pos = document_.positionOf(node);
        if (!pos.isKnown())
            return;
        const Place place(pos.line, pos.column);
        const std::string pointer = document_.pointerOf(node);
        if (pointers_.emplace(place, pointer).first->second != pointer)
            throw std::runtime_error("Two objects begin at one place: " + pointer);
    }

    const openapi::ReadResult& document_;
    std::map<Place, std::string> pointers_;
};

void listFindings(openapi::ReadResult& document, const std::string& id, jv::JV& findings) {
    LintContext context;
    context.document = &document;
    Places places(document);
    context.walk(places);
    findRule(id, Severity::Error)->check(context);
    for (const LintResult& result : context.results) {
        jv::JV* finding = findings.appendArray();
        finding->appendString(places.pointerOf(result));
        finding->appendString(result.message);
    }
}

void run(int count, char** arguments) {
    const test_support::ReadTree tree = test_support::readTree(arguments[1]);
    jv::JVDocument report;
    if (tree.result == nullptr) {
        report.setRoot(std::make_unique<jv::JV>());
    } else {
        std::unique_ptr<jv::JV> findings = jv::JV::newObject();
        for (int index = 2; index < count; ++index)
            listFindings(*tree.result, arguments[index], *findings->setArray(arguments[index]));
        report.setRoot(std::move(findings));
    }
    std::cout << jv::documentToText(report, jv::DocumentFormat::Json) << '\n';
}

} // namespace
} // namespace specloom::openapi_lint

int main(int argc, char** argv) {
    try {
        if (argc < 2)
            throw std::runtime_error("usage: list_findings FILE RULE...");
        specloom::openapi_lint::run(argc, argv);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
