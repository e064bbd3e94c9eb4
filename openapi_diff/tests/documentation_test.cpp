// Holds pages of the manual against the tables that they show.

#include "jv/deser.h"
#include "openapi_diff/configuration.h"
#include "openapi_diff/formatter.h"
#include "test_support/corpora.h"

#include <algorithm>   // std::max
#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint32_t
#include <string>      // std::string
#include <string_view> // std::string_view

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace specloom::openapi_diff {
namespace {

constexpr std::string_view words[] = {"none", "non_functional", "non_breaking", "breaking", "nested"};

std::string_view wordOf(ChangeLevel level) {
    return words[static_cast<int>(level)];
}

std::string cell(const NodeDiffConfig& entry, ChangeKind kind) {
    const ChangeLevel whenTrue = entry.lookup(kind, true);
    const ChangeLevel whenFalse = entry.lookup(kind, false);
    if (whenTrue == whenFalse)
        return fmt::format("`{}`", wordOf(whenTrue));
    return fmt::format("`{}` if true, else `{}`", wordOf(whenTrue), wordOf(whenFalse));
}

std::string tableOf(const Configuration& configuration) {
    std::string table = "| | Field | Actions of | Added | Removed | Modified |\n|---|---|---|---|---|---|\n";
    for (std::uint32_t number = 0; number < configKeyCount; ++number) {
        const auto key = static_cast<ConfigKey>(number);
        const ConfigField& field = configField(key);
        const NodeDiffConfig& entry = configuration.entry(key);
        const bool ofItems = field.form == EntryForm::Item;
        table += fmt::format("| {} | `{}{}{}` | {} | {} | {} | {} |\n", number, field.section,
                             field.name.empty() ? "" : ".", field.name,
                             ofItems                               ? "items"
                             : field.form == EntryForm::ModifyOnly ? "flag"
                                                                   : "field",
                             cell(entry, ofItems ? ChangeKind::KeyAdded : ChangeKind::PropertyAdded),
                             cell(entry, ofItems ? ChangeKind::KeyRemoved : ChangeKind::PropertyRemoved),
                             cell(entry, ofItems ? ChangeKind::KeyModified : ChangeKind::PropertyModified));
    }
    return table;
}

const std::string& page() {
    static const std::string text =
        test_support::fileBytes(SPECLOOM_SOURCE_DIR "/docs/diff-configuration.md");
    return text;
}

TEST(Documentation, namesEveryReportAndFormat) {
    for (const char* manual : {"/docs/commands.md", "/docs/diff.md"}) {
        const std::string text = test_support::fileBytes(std::string(SPECLOOM_SOURCE_DIR) + manual);
        for (const auto& names : {reportNames(), formatNames()})
            for (const std::string_view name : names)
                EXPECT_NE(text.find(fmt::format("`{}`", name)), std::string::npos) << manual << ": " << name;
    }
}

TEST(Documentation, theExampleCanBeUsed) {
    constexpr std::string_view opening = "```yaml\n";
    const std::size_t begin = page().find(opening) + opening.size();
    const std::string example = page().substr(begin, page().find("```", begin) - begin);
    const auto document = jv::parseDocument(example, {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
    const Configuration configuration = Configuration::load(document->lookup("/commands/diff"));
    EXPECT_EQ(configuration.entry(ConfigKey::InfoTitle).get(Action::Modify), ChangeLevel::NonFunctional);
    EXPECT_EQ(configuration.entry(ConfigKey::Paths).get(Action::ModifyItem), ChangeLevel::Nested);
}

/// What the columns of the page leave out: a value that is not known counts as the worse one, extensions as
/// such a value, elements as keys, and no entry speaks both of a field and of its items.
TEST(Documentation, theColumnsTellAllThatIsInAnEntry) {
    struct Action {
        ChangeKind property, key, element, extension;
    };
    using enum ChangeKind;
    constexpr Action actions[] = {{PropertyAdded, KeyAdded, ElementAdded, ExtensionAdded},
                                  {PropertyRemoved, KeyRemoved, ElementRemoved, ExtensionRemoved},
                                  {PropertyModified, KeyModified, ElementModified, ExtensionModified}};
    const Configuration configuration = Configuration::recommended();
    for (std::uint32_t number = 0; number < configKeyCount; ++number) {
        const auto key = static_cast<ConfigKey>(number);
        const NodeDiffConfig& entry = configuration.entry(key);
        SCOPED_TRACE(number);
        for (const Action& action : actions) {
            const ChangeLevel worse =
                std::max(entry.lookup(action.property, true), entry.lookup(action.property, false));
            EXPECT_EQ(entry.lookup(action.property), worse);
            EXPECT_EQ(entry.lookup(action.extension), worse);
            EXPECT_EQ(entry.lookup(action.element), entry.lookup(action.key));
            EXPECT_EQ(configField(key).form == EntryForm::Item ? worse : entry.lookup(action.key),
                      ChangeLevel::None);
        }
    }
}

TEST(Documentation, theTableIsTheEmbeddedOne) {
    const std::string table = tableOf(Configuration::recommended());
    EXPECT_NE(page().find("\n\n" + table + "\n"), std::string::npos) << table;
}

} // namespace
} // namespace specloom::openapi_diff
