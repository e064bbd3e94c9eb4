// Repairs of the documents of the corpora, judged by parsers that are not ours: beside what a repair is to
// change no value, key, order and spelling of a number is another one, and the text takes the repair.

#include "openapi/node_visitor.h"
#include "openapi/reader.h"
#include "openapi/schema.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_registry.h"
#include "source_edit/apply.h"
#include "test_support/corpora.h"
#include "test_support/parsers.h"
#include "test_support/read_tree.h"

#include <algorithm>   // std::find, std::stable_sort
#include <filesystem>  // std::filesystem
#include <functional>  // std::function
#include <map>         // std::map
#include <memory>      // std::make_unique, std::shared_ptr
#include <set>         // std::set
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/core.h>
#include <gtest/gtest.h>

namespace specloom::openapi_lint::repairs {
namespace {

namespace fs = std::filesystem;
using test_support::Tree;

// ---- what a repair is to make of a document, by what the pages of the rules say

Tree* memberOf(Tree* object, std::string_view key) {
    if (object == nullptr || object->kind != Tree::Kind::Object)
        return nullptr;
    const auto found = std::find(object->keys.begin(), object->keys.end(), key);
    return found == object->keys.end()
               ? nullptr
               : &object->elements[static_cast<std::size_t>(found - object->keys.begin())];
}

std::string textAt(Tree* object, std::string_view key) {
    const Tree* value = memberOf(object, key);
    return value == nullptr ? "" : value->text;
}

Tree textTree(std::string text) {
    Tree tree;
    tree.kind = Tree::Kind::String;
    tree.text = std::move(text);
    return tree;
}

void sortTags(Tree& root) {
    if (Tree* tags = memberOf(&root, "tags"))
        std::stable_sort(tags->elements.begin(), tags->elements.end(), [](Tree first, Tree second) {
            return textAt(&first, "name") < textAt(&second, "name");
        });
}

std::string lowerCase(std::string_view text) {
    std::string result;
    for (const char c : text)
        result += static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    return result;
}

std::string pathInOrder(std::string_view path) {
    std::string result = "/";
    for (const char c : lowerCase(path))
        if (c != '/' || result.back() != '/')
            result += c;
    return result;
}

/// Those of the location "path" that stand in the list itself and that the path names get their new names.
void renameParameters(Tree* list, std::string_view path) {
    if (list == nullptr)
        return;
    for (Tree& parameter : list->elements) {
        Tree* name = memberOf(&parameter, "name");
        if (name != nullptr && textAt(&parameter, "in") == "path" &&
            path.find('{' + name->text + '}') != std::string_view::npos)
            name->text = lowerCase(name->text);
    }
}

void renamePaths(Tree& root) {
    Tree* paths = memberOf(&root, "paths");
    if (paths == nullptr)
        return;
    const std::vector<std::string> before = paths->keys;
    std::map<std::string, std::size_t> places; // by name, as collisions are settled
    for (std::size_t place = 0; place < before.size(); ++place)
        if (!before[place].starts_with("x-"))
            places.emplace(before[place], place);
    std::set<std::string> taken;
    for (const auto& [path, place] : places) {
        const std::string renamed = pathInOrder(path);
        if (places.contains(renamed) || !taken.insert(renamed).second)
            continue;
        paths->keys[place] = renamed;
        Tree* item = &paths->elements[place];
        renameParameters(memberOf(item, "parameters"), path);
        for (const char* method : {"get", "put", "post", "delete", "options", "head", "patch", "trace"})
            renameParameters(memberOf(memberOf(item, method), "parameters"), path);
    }
}

// ---- what became of it

struct Document {
    fs::path path;
    std::string text;
    jv::DocumentFormat format;
    Tree tree; ///< by a parser that is not ours
    std::shared_ptr<const openapi::SchemaFormatRegistry> formats;

    [[nodiscard]] Tree parsed(std::string_view other) const {
        return format == jv::DocumentFormat::Json ? test_support::parseJsonIndependently(other)
                                                  : test_support::parseYamlIndependently(other);
    }
};

struct Counts {
    std::size_t inText = 0;
    std::size_t anew = 0;
};

using Repair = std::function<void(const openapi::ReadResult&, LintContext&)>;

/// The text after a repair, read anew from `text`; `text` itself when there is nothing to repair.
std::string repaired(const Document& document, const std::string& text, const Repair& repair,
                     Counts& counts) {
    jv::LoadOptions options;
    options.format = document.format;
    const auto tree = openapi::read(jv::parseDocument(text, options), document.formats);
    LintContext context;
    context.document = tree.get();
    repair(*tree, context);
    if (context.edits().empty())
        return text;
    const auto edited = source_edit::applyEdits(text, document.format, context.edits());
    if (!edited) {
        ADD_FAILURE() << "not repaired";
        return text;
    }
    counts.inText += edited->editedContainers;
    counts.anew += edited->renderedAnew.size();
    for (const std::string& pointer : edited->renderedAnew)
        fmt::print("{} {} rendered anew\n", document.path.string(), pointer);
    return edited->text;
}

void expectSame(const Document& document, const Tree& expected, const std::string& text) {
    const auto found =
        test_support::differences(expected, document.parsed(text), test_support::KeyOrder::Matters);
    EXPECT_EQ(found.size(), 0u) << describe(found.front());
}

Repair repairOf(std::string_view id) {
    return [id](const openapi::ReadResult&, LintContext& context) {
        findRule(id, Severity::Error)->fix(context);
    };
}

void raiseVersion(const openapi::ReadResult& tree, LintContext& context) {
    context.edits().setMember(*tree.root().info().source(), "version", std::make_unique<jv::JV>("99.0.0-rc"));
}

/// Lets every `enum` say twice what it says, because published ones hold no repeats.
void repeatEnums(const openapi::ReadResult& tree, LintContext& context) {
    struct : openapi::NodeVisitHandler {
        using NodeVisitHandler::visit;
        void visit(const openapi::Schema& schema) override {
            const jv::JV* source = schema.source();
            const jv::JV* list = source != nullptr && source->isObject() ? source->get("enum") : nullptr;
            if (list != nullptr && list->isArray())
                lists.insert(list);
        }
        std::set<const jv::JV*> lists;
    } schemas;
    openapi::NodeVisitor(schemas).visit(tree.root());
    for (const jv::JV* list : schemas.lists)
        for (const jv::JV* value : list->elements())
            context.edits().insertElement(*list, 2 * list->size(), jv::JVDocument::clone(*value));
}

constexpr std::size_t mostForAll = 1'000'000; // bytes of YAML; above only all repairs together are judged

void judge(const Document& document, Counts& counts) {
    const bool judgesEach = document.format == jv::DocumentFormat::Json || document.text.size() < mostForAll;
    std::string all = document.text;
    Tree expectedAll = document.tree;
    const auto judgeOne = [&](const char* name, const Repair& repair, const auto& expect) {
        SCOPED_TRACE(name);
        all = repaired(document, all, repair, counts);
        expect(expectedAll, all);
        if (!judgesEach)
            return;
        Counts alone;
        const std::string text = repaired(document, document.text, repair, alone);
        Tree expected = document.tree;
        expect(expected, text);
        expectSame(document, expected, text);
    };
    judgeOne("tags-sorted", repairOf("tags-sorted"), [](Tree& tree, const std::string&) { sortTags(tree); });
    judgeOne("paths-well-formed", repairOf("paths-well-formed"),
             [](Tree& tree, const std::string&) { renamePaths(tree); });
    judgeOne("id-defined", repairOf("id-defined"), [](Tree& tree, const std::string& text) {
        std::size_t at = text.find("x-id"); // as a key, not in a word
        while (at != std::string::npos && text[at + 4] != ':' && text[at + 4] != '"')
            at = text.find("x-id", at + 4);
        ASSERT_NE(at, std::string::npos);
        memberOf(&tree, "info")
            ->set("x-id", textTree(text.substr(text.find_first_of("0123456789abcdef", at + 4), 36)));
    });
    judgeOne("version", raiseVersion, [](Tree& tree, const std::string&) {
        memberOf(&tree, "info")->set("version", textTree("99.0.0-rc"));
    });
    for (const char* id : {"paths-sorted", "path-parameters-on-items", "spell-check"})
        EXPECT_TRUE(repaired(document, all, repairOf(id), counts) == all) << id;
    expectSame(document, expectedAll, all);
    const std::string repeated = repaired(document, document.text, repeatEnums, counts);
    const std::string distinct = repaired(document, repeated, repairOf("schema-enum-no-duplicates"), counts);
    EXPECT_TRUE(distinct == document.text) << "repeats that come and go leave a trace";
}

TEST(Repairs, changeNothingElseInDocumentsOfTheCorpora) {
    SPECLOOM_NEEDS_CORPORA();
    Counts total;
    std::size_t documents = 0;
    for (const fs::path& path : test_support::affordableCorpusDocuments()) {
        SCOPED_TRACE(path);
        const test_support::ReadTree tree = test_support::readTree(path);
        if (tree.result == nullptr || tree.result->source().losses() != jv::ReadingLosses())
            continue; // that it has to be refused is shown elsewhere
        Document document{
            path, test_support::fileBytes(path), *jv::formatFromPath(path.string()), {}, tree.formats};
        document.tree = document.parsed(document.text);
        Counts counts;
        judge(document, counts);
        fmt::print("{:50} {:8} {:8}\n", path.filename().string(), counts.inText, counts.anew);
        total.inText += counts.inText;
        total.anew += counts.anew;
        ++documents;
    }
    EXPECT_GT(documents, 20u);
    EXPECT_GT(total.inText, 1000u);
    EXPECT_LE(total.anew * 100, total.inText + total.anew);
}

} // namespace
} // namespace specloom::openapi_lint::repairs
