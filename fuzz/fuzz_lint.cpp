// Lint of real documents in which a few places were changed: every rule, every report, and the fixes, which a
// second run has nothing to add to. The input says which document, which options, and which changes.

#include "foundation/utf8.h"
#include "fuzz/check.h"
#include "fuzz/document_mutation.h"
#include "openapi/info.h"
#include "openapi/reader.h"
#include "openapi/writer.h"
#include "openapi_lint/formatter_registry.h"
#include "openapi_lint/linter.h"
#include "openapi_lint/rule_registry.h"

#include <algorithm> // std::min
#include <exception> // std::exception
#include <memory>    // std::make_shared, std::unique_ptr
#include <optional>  // std::optional
#include <sstream>   // std::ostringstream
#include <vector>    // std::vector

namespace {

namespace fuzz = specloom::fuzz;
namespace jv = specloom::jv;
namespace lint = specloom::openapi_lint;
namespace openapi = specloom::openapi;
using jv::DocumentFormat;

/// For each rule that takes options some that are not its own, and a severity that is not that of "all".
constexpr const char* rulesWithOptions = R"({
    "id-defined": ["warn", {"attribute": "x-api-id", "pattern": "[a-z]+(-[a-z]+)*"}],
    "operation-description-defined": ["warn", 12],
    "parameter-description-defined": ["warn", 3.5],
    "parameter-naming": ["warn", {"default": "snake", "path": "const", "query": "camel", "cookie": "pascal"}],
    "paths-max-count": ["warn", 1],
    "paths-max-depth": ["warn", 1.5],
    "schema-constraints": ["error", {"integer": true, "number": true, "string": true, "array": true, "object": true}],
    "schema-datetime-suffix": ["warn", "At"],
    "standard-response-errors": ["error", "json-api"],
    "tag-description-defined": ["error", 5]
})";

/// Every rule there is; that for spelling with a dictionary of our own, because those of machines differ.
[[nodiscard]] std::unique_ptr<jv::JV> configuration(bool withOptions) {
    auto config = jv::JV::newObject();
    jv::JV& rulesets = *config->setArray("extends");
    for (const char* name : {"all", "json-api"})
        rulesets.appendString(name);
    jv::JV& rules = *config->setObject("rules");
    if (withOptions)
        jv::JVDocument::assign(*fuzz::readIfGood(rulesWithOptions, DocumentFormat::Json)->root(), rules);
    jv::JV& spelling = *rules.setArray("spell-check");
    spelling.appendString("warn");
    jv::JV& options = *spelling.appendObject();
    options.setString("affix", SPELLING "/words.aff");
    options.setString("dictionary", SPELLING "/words.dic");
    if (withOptions)
        options.setArray("words")->appendString("webhook");
    return config;
}

/// All rules with one set of options. The linter that makes them checks nothing itself, since it would write
/// to the disk.
class ConfiguredRules {
  public:
    explicit ConfiguredRules(bool withOptions) : linter_(complaints_) {
        linter_.configure(configuration(withOptions).get());
        fuzz::require(complaints_.view().empty(), complaints_.view());
        fuzz::require(linter_.rules().size() == lint::ruleIds().size(), "every rule runs");
    }
    [[nodiscard]] const lint::Linter::Rules& rules() const { return linter_.rules(); }

  private:
    std::ostringstream complaints_;
    lint::Linter linter_;
};

/// Where the lines of a text are, and how long.
class Places {
  public:
    Places(std::string_view text, DocumentFormat format) : base_(format == DocumentFormat::Json ? 1 : 0) {
        while (!text.empty()) {
            const std::string_view line = text.substr(0, text.find('\n'));
            lengths_.push_back(base_ == 1 ? line.size() : specloom::utf8Length(line));
            text.remove_prefix(std::min(line.size() + 1, text.size()));
        }
    }
    /// Whether a character stands there.
    [[nodiscard]] bool hold(const lint::LintResult& finding) const {
        const std::uint64_t line = finding.line - base_; // a 0 where counting starts at 1 is beyond all
        return line < lengths_.size() && finding.column - base_ < lengths_[line];
    }

  private:
    std::uint64_t base_; ///< what the reader of the format counts from
    std::vector<std::uint64_t> lengths_;
};

/// What --fix does before it writes. An identifier that was made up for it is random: it gives way to one
/// that is not, so that two runs of one input do the same.
void fix(const lint::Linter::Rules& rules, openapi::ReadResult& tree) {
    constexpr const char* identifier = "x-id";
    lint::LintContext context;
    context.document = &tree;
    openapi::Info& info = tree.root().info();
    const jv::JV* before = info.findExtension(identifier);
    for (const auto& [id, rule] : rules)
        if (rule->isFixable())
            rule->fix(context);
    if (info.findExtension(identifier) != before)
        info.replaceExtension(openapi::Text(identifier), openapi::Value(std::make_unique<jv::JV>(
                                                             "01234567-89ab-4def-8123-456789abcdef")));
}

/// Has all rules look at the tree.
void check(const lint::Linter::Rules& rules, openapi::ReadResult& tree, const Places& places,
           lint::LintContext& context) {
    context.document = &tree;
    context.freeze();
    for (const auto& [id, rule] : rules)
        rule->check(context);
    context.release();
    for (const lint::LintResult& finding : context.results)
        fuzz::require(!finding.hasPosition() || places.hold(finding),
                      "a finding stands in the document: " + finding.message);
}

void report(const lint::LintContext& context) {
    for (const std::string_view name : lint::formatterNames()) {
        std::ostringstream out;
        lint::findFormatter(name, out)->format(context);
        fuzz::require(out.good(), "a report is written");
    }
}

/// Nothing when it cannot be written so that it reads as the same.
[[nodiscard]] std::optional<std::string> write(const jv::JVDocument& document, DocumentFormat format) {
    if (!fuzz::canBeKept(document, format))
        return std::nullopt;
    return jv::documentToText(document, format);
}

/// Null when it is refused as an OpenAPI document, which is reported in words.
[[nodiscard]] std::unique_ptr<openapi::ReadResult> read(std::string_view text, DocumentFormat format) {
    static const auto known = std::make_shared<const openapi::SchemaFormatRegistry>();
    auto document = fuzz::readIfGood(text, format);
    fuzz::require(document != nullptr, "what was written is read");
    try {
        return openapi::read(std::move(document), known);
    } catch (const std::exception& error) {
        fuzz::require(*error.what() != '\0', "a refusal has a text");
        return nullptr;
    }
}

/// The document after its fixes.
[[nodiscard]] std::optional<std::string> fixed(const lint::Linter::Rules& rules, openapi::ReadResult& tree,
                                               DocumentFormat format) {
    fix(rules, tree);
    return write(*openapi::Writer(tree).write(tree.root()), format);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string>& documents = fuzz::documentTexts(20'000);
    fuzz::require(!documents.empty(), "there are documents to change");
    fuzz::Choices choices(fuzz::textOf(data, size));
    auto document = fuzz::readIfGood(documents[choices.below(documents.size())], DocumentFormat::Json);
    const DocumentFormat format = choices.below(2) == 0 ? DocumentFormat::Json : DocumentFormat::Yaml;
    static const ConfiguredRules plain(false);
    static const ConfiguredRules special(true);
    const lint::Linter::Rules& rules = (choices.below(2) == 0 ? plain : special).rules();
    for (std::size_t changes = choices.below(8); changes > 0; --changes)
        fuzz::mutate(*document, choices);
    const std::optional<std::string> text = write(*document, format);
    if (!text)
        return 0;
    const auto tree = read(*text, format);
    if (tree == nullptr)
        return 0;
    const Places places(*text, format);
    lint::LintContext context;
    context.setFilename("/harbour/api <1>.yaml");
    check(rules, *tree, places, context);
    const std::optional<std::string> once = fixed(rules, *tree, format);
    check(rules, *tree, places, context); // some findings are without a place now
    report(context);
    if (!once)
        return 0;
    const auto again = read(*once, format);
    fuzz::require(again != nullptr, *once + "\nwhat was fixed is read");
    const std::optional<std::string> twice = fixed(rules, *again, format);
    fuzz::require(twice == once,
                  *once + "\nbecame\n" + twice.value_or("") + "\na second fix changes nothing");
    return 0;
}
