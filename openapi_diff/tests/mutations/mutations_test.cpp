// The property that decides whether the comparison is right: a document and the same one after one edit. What
// is reported is held against what a reading of the values and of the table, apart from the program, expects.

#include "jv/deser.h"
#include "mutations/expectation.h"
#include "mutations/mutation.h"
#include "openapi/reader.h"
#include "openapi_diff/diffs/openapi_diff.h"
#include "test_support/corpora.h"
#include "test_support/read_tree.h"
#include "test_support/sanitizers.h"

#include <algorithm> // std::all_of, std::any_of, std::find, std::max, std::set_difference, std::shuffle, std::sort
#include <cstdint>  // std::uint32_t
#include <iostream> // std::cout
#include <iterator> // std::back_inserter
#include <map>      // std::map
#include <random>   // std::mt19937
#include <set>      // std::set, std::multiset

#include <gtest/gtest.h>

namespace specloom::openapi_diff::mutations {
namespace {

namespace fs = std::filesystem;

constexpr unsigned seed = 20240611;

std::string jsonOf(const fs::path& path) {
    const auto loaded = jv::loadDocument(path.string());
    return jv::documentToText(*loaded.document, jv::DocumentFormat::Json);
}

/// The reported changes as lines of the form of Expectation.
class Lines : public Report {
  public:
    Lines(const openapi::ReadResult& source, const openapi::ReadResult& destination)
        : source_(source), destination_(destination) {}

    void add(const Change& change) override {
        const ConfigField& field = configField(change.key);
        std::string line(changeKindText(change.kind));
        line += ' ';
        line += field.section;
        if (!field.name.empty())
            line.append(".").append(field.name);
        if (isOfEntry(change.kind))
            line.append(" (").append(change.name).append(")");
        if (change.index != -1)
            line += " [" + std::to_string(change.index) + "]";
        line.append(" ").append(changeLevelText(change.level));
        line += change.side == DocumentSide::Source ? " -" : " +";
        line += pointerOf(*change.node);
        if (change.isPart)
            line += ", part";
        else if (change.weight != change.level)
            line.append(", weighs ").append(changeLevelText(change.weight));
        lines.insert(line);
    }

    std::multiset<std::string> lines;

  private:
    static bool isOfEntry(ChangeKind kind) {
        return (kind >= ChangeKind::KeyAdded && kind <= ChangeKind::KeyModified) ||
               kind >= ChangeKind::ExtensionAdded;
    }

    std::string pointerOf(const openapi::Node& node) const {
        if (node.source() == nullptr)
            return "?";
        return (node.root() == &source_.root() ? source_ : destination_).pointerOf(node);
    }

    const openapi::ReadResult& source_;
    const openapi::ReadResult& destination_;
};

std::multiset<std::string> changesBetween(const openapi::ReadResult& source,
                                          const openapi::ReadResult& destination,
                                          const Configuration& configuration) {
    Lines report(source, destination);
    DiffContext context(configuration, source, destination, report);
    OpenAPIDiff().diff(&source.root(), &destination.root(), context);
    return report.lines;
}

std::string embeddedTable() {
    return test_support::fileBytes(fs::path(SPECLOOM_TEST_DIR) / "configurations" / "recommended.yaml");
}

const Classifications& table() {
    static const Classifications classifications(embeddedTable());
    return classifications;
}

/// The embedded table with other levels in a third of its places.
std::string anotherTable(std::mt19937& random) {
    const std::vector<std::string> levels{"none", "non_functional", "non_breaking", "breaking", "nested"};
    const std::string table = embeddedTable();
    std::string result;
    for (std::size_t at = 0; at < table.size();) {
        const std::size_t length =
            std::max(table.find_first_not_of("abcdefghijklmnopqrstuvwxyz_", at), at + 1) - at;
        const std::string word = table.substr(at, length);
        const bool isLevel = std::find(levels.begin(), levels.end(), word) != levels.end();
        result += isLevel && random() % 3 == 0 ? levels[random() % levels.size()] : word;
        at += length;
    }
    return result;
}

/// The lines of one of two sets that the other one lacks.
std::string missing(const std::multiset<std::string>& in, const std::multiset<std::string>& from) {
    std::vector<std::string> lines;
    std::set_difference(in.begin(), in.end(), from.begin(), from.end(), std::back_inserter(lines));
    std::string text;
    for (const std::string& line : lines)
        text += "  " + line + "\n";
    return text;
}

/// Compares a document with many edits of itself.
class Trial {
  public:
    explicit Trial(const fs::path& path)
        : source_(test_support::readTree(path)), document_(Json::parse(jsonOf(path))) {}

    [[nodiscard]] const std::string& refusal() const { return source_.refusal; }

    void check(const Mutation& mutation) {
        Json edited = document_;
        mutation.apply(edited);
        std::unique_ptr<openapi::ReadResult> destination;
        try {
            destination = openapi::read(
                jv::parseDocument(edited.dump(), {.format = jv::DocumentFormat::Json, .refLoader = {}}),
                source_.formats);
        } catch (const std::exception&) {
            ++refused; // such as one without a member that must be there
            return;
        }
        ++counts[mutation.kind];
        const auto expected = Expectation(document_, edited, table()).lines();
        const auto actual = changesBetween(*source_.result, *destination, Configuration::recommended());
        EXPECT_TRUE(actual == expected) << mutation.text() << "\ntells\n"
                                        << missing(actual, expected) << "and does not tell\n"
                                        << missing(expected, actual);
        noteKeys(expected);
        if (mutation.kind == Kind::Unseen)
            EXPECT_TRUE(expected.empty()) << mutation.text();
        else if (!isTold(mutation, expected))
            noteSilence(mutation, edited);
    }

    std::map<Kind, std::size_t> counts;
    std::map<std::string, std::size_t> silent; ///< edits that are no change, by the reason
    std::set<std::string> keys;                ///< of all changes
    std::size_t refused = 0;

  private:
    void noteKeys(const std::multiset<std::string>& lines) {
        for (const std::string& line : lines) {
            const std::size_t begin = line.find(' ') + 1;
            keys.insert(line.substr(begin, line.find(' ', begin) - begin));
        }
    }

    /// Whether any line is about what was edited.
    static bool isTold(const Mutation& mutation, const std::multiset<std::string>& lines) {
        const std::string subject =
            mutation.key.empty() ? "(" + mutation.member + ")" : " " + mutation.key + " ";
        return std::any_of(lines.begin(), lines.end(),
                           [&](const std::string& line) { return line.find(subject) != std::string::npos; });
    }

    void noteSilence(const Mutation& mutation, const Json& edited) {
        const char* reason = reasonOfSilence(mutation, edited);
        ASSERT_NE(reason, nullptr) << mutation.text() << " should be a change";
        ++silent[reason];
    }

    /// Why an edit is no change; null when it should be one.
    const char* reasonOfSilence(const Mutation& mutation, const Json& edited) const {
        if (mutation.kind == Kind::ItemMoved)
            return "no more than the order";
        if (table().isNone(mutation.key))
            return "classified as none";
        const Json* before = valueIn(document_, mutation);
        const Json* after = valueIn(edited, mutation);
        if (before == nullptr && after == nullptr)
            return "void beside another member";
        const auto isUnset = [](const Json* value) { return value == nullptr || *value == false; };
        if (isUnset(before) && isUnset(after))
            return "a flag that is unset anyway";
        return isHollow(before) && isHollow(after) ? "an object without content" : nullptr;
    }

    /// Whether there is nothing in a value that could be told.
    static bool isHollow(const Json* value) {
        if (value == nullptr || *value == true)
            return true;
        return value->is_structured() &&
               std::all_of(value->begin(), value->end(), [](const Json& child) { return isHollow(&child); });
    }

    /// The edited member of a document; null where it is absent or does not count.
    static const Json* valueIn(const Json& document, const Mutation& mutation) {
        const Json& owner = document.at(Json::json_pointer(mutation.at));
        const std::string section = mutation.key.substr(0, mutation.key.find('.'));
        for (const Field& field : fieldsOf(section))
            if (field.key == mutation.key && field.member == mutation.member)
                return memberOf(section, owner, field);
        return owner.is_object() && owner.contains(mutation.member) ? &owner.at(mutation.member) : nullptr;
    }

    test_support::ReadTree source_;
    Json document_;
};

/// One edit of each kind for each field, and of each extension.
std::vector<Mutation> oneOfEach(std::vector<Mutation> mutations) {
    std::mt19937 random(seed);
    std::shuffle(mutations.begin(), mutations.end(), random);
    std::set<std::pair<Kind, std::string>> seen;
    std::erase_if(mutations, [&](const Mutation& mutation) {
        const std::string& subject = !mutation.key.empty()           ? mutation.key
                                     : mutation.kind == Kind::Unseen ? mutation.member
                                                                     : mutation.at;
        return !seen.emplace(mutation.kind, subject).second;
    });
    return mutations;
}

/// The first edits of each kind, then the second ones, and so on.
std::vector<Mutation> chosen(std::vector<Mutation> mutations, std::size_t count) {
    std::mt19937 random(seed);
    std::shuffle(mutations.begin(), mutations.end(), random);
    std::map<Kind, std::size_t> seen;
    std::vector<std::pair<std::size_t, std::size_t>> order; // rank within the kind, position
    for (std::size_t i = 0; i < mutations.size(); ++i)
        order.emplace_back(seen[mutations[i].kind]++, i);
    std::sort(order.begin(), order.end());
    std::vector<Mutation> result;
    for (const auto& [rank, position] : order)
        if (result.size() < count)
            result.push_back(std::move(mutations[position]));
    return result;
}

void print(const std::string& name, const Trial& trial, std::size_t edits) {
    std::cout << name << ", seed " << seed << ": " << edits << " edits";
    for (const auto& [kind, count] : trial.counts)
        std::cout << ", " << count << ' ' << textOf(kind);
    std::cout << "; " << trial.refused << " refused by the reader";
    for (const auto& [reason, count] : trial.silent)
        std::cout << "; " << count << " without a change: " << reason;
    std::cout << '\n';
}

TEST(Everything, isReportedAsTheTableTells) {
    const fs::path path = fs::path(SPECLOOM_TEST_DIR) / "tests/mutations/everything.yaml";
    Trial trial(path);
    ASSERT_EQ(trial.refusal(), "");
    const auto mutations = oneOfEach(mutationsOf(Json::parse(jsonOf(path))));
    for (const Mutation& mutation : mutations)
        trial.check(mutation);
    print("everything.yaml", trial, mutations.size());

    const std::map<std::string, const char*> unseen{
        {"header.name", "headers go by the names of the map that holds them"},
        {"info.version", "none"},
        {"openapi.jsonSchemaDialect", "none"}};
    for (std::uint32_t number = 0; number < configKeyCount; ++number) {
        const ConfigField& field = configField(static_cast<ConfigKey>(number));
        std::string key(field.section);
        if (!field.name.empty())
            key.append(".").append(field.name);
        EXPECT_EQ(trial.keys.contains(key), !unseen.contains(key)) << key;
    }
}

struct Corpus {
    const char* path;
    std::size_t edits; ///< as many as this, or all
};

void PrintTo(const Corpus& corpus, std::ostream* stream) {
    *stream << corpus.path;
}

/// The sanitizers slow everything down tenfold; they see the first edits of each kind.
constexpr std::size_t share = test_support::hasAddressSanitizer ? 5 : 1;

class Mutations : public testing::TestWithParam<Corpus> {};

TEST_P(Mutations, areReportedAsTheTableTells) {
    SPECLOOM_NEEDS_CORPORA();
    const fs::path path = test_support::corporaFolder() / GetParam().path;
    Trial trial(path);
    ASSERT_EQ(trial.refusal(), "");
    const auto mutations = chosen(mutationsOf(Json::parse(jsonOf(path))), GetParam().edits / share);
    for (const Mutation& mutation : mutations)
        trial.check(mutation);
    print(GetParam().path, trial, mutations.size());
}

class Pairs : public testing::TestWithParam<const char*> {};

/// Two versions of an API, by the embedded table and by others: many changes at once.
TEST_P(Pairs, areReportedAsTheTableTells) {
    SPECLOOM_NEEDS_CORPORA();
    const fs::path folder = test_support::corporaFolder() / "pairs";
    const std::string name = GetParam();
    const std::string extension = fs::exists(folder / (name + "-old.json")) ? ".json" : ".yaml";
    const auto pathOf = [&](const char* version) { return folder / (name + version + extension); };
    const test_support::ReadTree source = test_support::readTree(pathOf("-old"));
    const test_support::ReadTree destination = test_support::readTree(pathOf("-new"));
    ASSERT_EQ(source.refusal + destination.refusal, "");
    const Json before = Json::parse(jsonOf(pathOf("-old")));
    const Json after = Json::parse(jsonOf(pathOf("-new")));

    std::mt19937 random(seed);
    std::cout << name << ", seed " << seed << ':';
    std::vector<std::string> tables{anotherTable(random)};
    if (!test_support::hasAddressSanitizer)
        tables.insert(tables.end(), {embeddedTable(), anotherTable(random)});
    for (const std::string& levels : tables) {
        const auto document =
            jv::parseDocument(levels, {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
        const auto expected = Expectation(before, after, Classifications(levels)).lines();
        const auto actual =
            changesBetween(*source.result, *destination.result, Configuration::load(document->root()));
        EXPECT_TRUE(actual == expected) << levels << "tells\n"
                                        << missing(actual, expected) << "and does not tell\n"
                                        << missing(expected, actual);
        EXPECT_GT(expected.size(), 10U);
        std::cout << ' ' << expected.size() << " changes";
    }
    std::cout << '\n';
}

INSTANTIATE_TEST_SUITE_P(Corpora, Pairs,
                         testing::Values("adyen-checkout", "discord", "github-enterprise", "meilisearch",
                                         "spotify", "twilio-lookups", "xero-projects"));

INSTANTIATE_TEST_SUITE_P(Corpora, Mutations,
                         testing::Values(Corpus{"openapi/oai-petstore-expanded-3.0.json", 400},
                                         Corpus{"openapi/oai-link-example-3.0.json", 300},
                                         Corpus{"openapi/oai-uspto-3.0.yaml", 300},
                                         Corpus{"openapi/oai-api-with-examples-3.0.yaml", 200},
                                         Corpus{"openapi/oai-callback-example-3.0.json", 200},
                                         Corpus{"openapi/oai-tictactoe-3.1.yaml", 400},
                                         Corpus{"openapi/oai-webhook-example-3.1.json", 150},
                                         Corpus{"openapi/oai-non-oauth-scopes-3.1.yaml", 100},
                                         Corpus{"openapi/twilio-lookups-v1-3.0.yaml", 200},
                                         Corpus{"openapi/ogc-features-3.0.yaml", 200},
                                         Corpus{"pairs/xero-projects-new.yaml", 150},
                                         Corpus{"openapi/adyen-payout-3.1.yaml", 100},
                                         Corpus{"openapi/resend-3.1.yaml", 50},
                                         Corpus{"openapi/spotify-3.0.yaml", 30}));

} // namespace
} // namespace specloom::openapi_diff::mutations
