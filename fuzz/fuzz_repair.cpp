// Edits and fixes in the text of a document: the outcome is what was meant, the text beside is the same, and
// a second fix has nothing to do. The input is the document; what is done to it depends on all of it.

#include "fuzz/check.h"
#include "openapi/reader.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_registry.h"
#include "source_edit/apply.h"
#include "source_edit/edited_values.h"
#include "source_edit/unified_diff.h"

#include <algorithm> // std::any_of
#include <exception> // std::exception
#include <memory>    // std::make_shared, std::make_unique
#include <optional>  // std::optional
#include <string>    // std::string
#include <vector>    // std::vector

namespace {

namespace fuzz = specloom::fuzz;
namespace jv = specloom::jv;
namespace lint = specloom::openapi_lint;
namespace openapi = specloom::openapi;
namespace source_edit = specloom::source_edit;
using jv::DocumentFormat;
using jv::JV;

/// Numbers that depend on the input, one after another.
class Draws {
  public:
    explicit Draws(std::string_view input) : state_(fuzz::drawFrom(input) | 1U) {}
    std::size_t below(std::size_t limit) {
        state_ ^= state_ << 13U;
        state_ ^= state_ >> 7U;
        state_ ^= state_ << 17U;
        return static_cast<std::size_t>(state_ % limit);
    }

  private:
    std::uint64_t state_;
};

std::vector<const JV*> containersOf(const JV& root) {
    std::vector<const JV*> found{&root};
    for (std::size_t next = 0; next < found.size(); ++next) {
        const JV& container = *found[next];
        const auto add = [&](const JV* child) {
            if (child->isArray() || child->isObject())
                found.push_back(child);
        };
        if (container.isArray())
            for (const JV* child : container.elements())
                add(child);
        else
            for (const jv::Member member : container.members())
                add(member.value);
    }
    return found;
}

std::unique_ptr<JV> newValue(Draws& draws) {
    static constexpr std::string_view texts[] = {"",       "a",        "1.0",  "a: b", "- a", "#",    "'\"\\",
                                                 "a\nb\n", "\xc3\xa4", "null", "{",    "[]",  "a #b", " a "};
    if (draws.below(4) != 0)
        return std::make_unique<JV>(texts[draws.below(std::size(texts))]);
    auto object = JV::newObject();
    object->setArray("x")->appendString(texts[draws.below(std::size(texts))]);
    return object;
}

void editArray(const JV& array, source_edit::Edits& edits, Draws& draws) {
    std::vector<const JV*> kept(array.elements().begin(), array.elements().end());
    for (std::size_t times = draws.below(4); times > 0 && kept.size() > 1; --times)
        std::swap(kept[draws.below(kept.size())], kept[draws.below(kept.size())]);
    if (draws.below(2) == 0 && !kept.empty())
        kept.erase(kept.begin() + static_cast<std::ptrdiff_t>(draws.below(kept.size())));
    edits.arrangeElements(array, kept);
    if (draws.below(4) == 0)
        edits.insertElement(array, draws.below(array.size() + 1), newValue(draws));
}

bool isTaken(std::string_view key, const JV& object, const source_edit::Edits& edits) {
    const source_edit::EditedContainer* edited = edits.find(object);
    return object.has(key) ||
           (edited != nullptr && std::any_of(edited->children.begin(), edited->children.end(),
                                             [&](const auto& child) { return child.key == key; }));
}

void editObject(const JV& object, source_edit::Edits& edits, Draws& draws) {
    std::vector<std::string_view> keys = edits.source().keysOf(&object);
    if (keys.empty() || draws.below(4) == 0) {
        edits.setMember(object, "new key", newValue(draws));
        return;
    }
    const std::string key(keys[draws.below(keys.size())]);
    switch (draws.below(4)) {
    case 0:
        edits.setMember(object, key, newValue(draws));
        break;
    case 1:
        edits.removeMember(object, key);
        break;
    case 2:
        if (!isTaken("renamed: {key}", object, edits))
            edits.renameMembers(object, std::vector<source_edit::Edits::Renaming>{{key, "renamed: {key}"}});
        break;
    default:
        std::swap(keys.front(), keys[draws.below(keys.size())]);
        edits.orderMembers(object, keys);
    }
}

/// What stands outside of the changes is the same.
void requireSameBeside(std::string_view before, const source_edit::EditedText& edited) {
    std::size_t at = 0;
    std::size_t atAfter = 0;
    for (const source_edit::Change& change : edited.changes) {
        fuzz::require(before.substr(at, change.before.begin - at) ==
                          edited.text.substr(atAfter, change.after.begin - atAfter),
                      "the text between two changes is the same");
        at = change.before.end;
        atAfter = change.after.end;
    }
    fuzz::require(before.substr(at) == edited.text.substr(atAfter),
                  "the text behind all changes is the same");
    (void)source_edit::unifiedDiff("a", before, edited.text, edited.changes);
}

std::optional<source_edit::EditedText> edited(std::string_view text, DocumentFormat format,
                                              const source_edit::Edits& edits) {
    auto result = source_edit::applyEdits(text, format, edits);
    if (!result)
        return result;
    requireSameBeside(text, *result);
    const auto intended = source_edit::editedValue(edits, *edits.source().root());
    const auto document = fuzz::readIfGood(result->text, format);
    fuzz::require(document != nullptr && intended->root()->equals(*document->root()),
                  "the outcome is what was meant");
    return result;
}

void editAnywhere(std::string_view text, DocumentFormat format, const jv::JVDocument& document) {
    Draws draws(text);
    source_edit::Edits edits(document);
    const std::vector<const JV*> containers = containersOf(*document.root());
    for (std::size_t times = 1 + draws.below(3); times > 0; --times) {
        const JV& container = *containers[draws.below(containers.size())];
        container.isArray() ? editArray(container, edits, draws) : editObject(container, edits, draws);
    }
    const bool isMade = edits.empty() || edited(text, format, edits).has_value();
    fuzz::require(isMade || format == DocumentFormat::Yaml, "JSON takes all edits");
}

/// Null when it is none.
std::unique_ptr<openapi::ReadResult> tree(std::unique_ptr<jv::JVDocument> document) {
    static const auto formats = std::make_shared<const openapi::SchemaFormatRegistry>();
    try {
        return openapi::read(std::move(document), formats);
    } catch (const std::exception&) {
        return nullptr;
    }
}

void fix(openapi::ReadResult& document, lint::LintContext& context) {
    context.document = &document;
    for (const char* id : {"id-defined", "paths-well-formed", "schema-enum-no-duplicates", "tags-sorted"})
        lint::findRule(id, lint::Severity::Error)->fix(context);
}

void fixTwice(std::string_view text, DocumentFormat format, openapi::ReadResult& document) {
    lint::LintContext context;
    fix(document, context);
    if (context.edits().empty())
        return;
    auto once = edited(text, format, context.edits());
    fuzz::require(once.has_value() || format == DocumentFormat::Yaml, "JSON takes all fixes");
    if (!once)
        return;
    const auto again = tree(fuzz::readIfGood(once->text, format));
    fuzz::require(again != nullptr, "what was fixed is read");
    lint::LintContext second;
    fix(*again, second);
    fuzz::require(second.edits().empty(), once->text + "\na second fix changes nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::textOf(data, size);
    for (const DocumentFormat format : {DocumentFormat::Json, DocumentFormat::Yaml}) {
        auto document = fuzz::readIfGood(text, format);
        if (document == nullptr || document->losses() != jv::ReadingLosses())
            continue;
        if (!document->root()->isArray() && !document->root()->isObject())
            continue;
        editAnywhere(text, format, *document);
        if (const auto read = tree(std::move(document)))
            fixTwice(text, format, *read);
    }
    return 0;
}
