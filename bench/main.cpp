#include "bench/benchmarks.h"
#include "test_support/corpora.h"

#include <cstdio>      // stderr
#include <cstdlib>     // std::atoi
#include <exception>   // std::exception
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/core.h>

namespace {

namespace bench = specloom::bench;
namespace fs = std::filesystem;

constexpr const char* usage =
    "usage: specloom_bench [--rounds N] [--generate | --growth | FILE.json | FILE.yaml...]\n";

/// The large documents of the corpora.
[[nodiscard]] std::vector<fs::path> standardDocuments() {
    const fs::path corpora = specloom::test_support::corporaFolder();
    std::vector<fs::path> paths;
    if (!corpora.empty())
        for (const char* name :
             {"stripe-3.0.json", "cloudflare-3.0-indented.json", "cloudflare-3.0-compact.json",
              "github-3.0.json", "stripe-3.0.yaml", "openai-3.1.yaml"})
            paths.push_back(corpora / "openapi" / name);
    return paths;
}

/// An edited copy of a document whose schemas refer to one another in cycles: some limits are lowered, here
/// and there.
[[nodiscard]] bench::Input editedInPlaces(const bench::Input& input) {
    constexpr std::string_view before = "\"maxLength\": 5000";
    constexpr std::string_view after = "\"maxLength\": 4999";
    constexpr int everyTime = 700;
    bench::Input edited{input.path.stem().string() + ".edited.json", input.text};
    int met = 0;
    for (std::size_t at = edited.text.find(before); at != std::string::npos;
         at = edited.text.find(before, at + before.size()))
        if (++met % everyTime == 0)
            edited.text.replace(at, before.size(), after);
    return edited;
}

/// A document of the corpora.
[[nodiscard]] bench::Input input(const char* name) {
    const fs::path path = specloom::test_support::corporaFolder() / name;
    return {path, specloom::test_support::fileBytes(path)};
}

void benchDiffs(int rounds, bench::Table& table) {
    const bench::Input before = input("pairs/github-enterprise-old.json");
    bench::benchDiff(before, input("pairs/github-enterprise-new.json"), rounds, table);
    bench::benchDiffOfItself(before, rounds, table);
    const bench::Input stripe = input("openapi/stripe-3.0.json");
    bench::benchDiff(stripe, editedInPlaces(stripe), rounds, table);
    bench::benchDiffOfItself(stripe, rounds, table);
}

/// Whether every promise was kept.
bool run(const std::vector<fs::path>& paths, bool isWhole, int rounds) {
    bench::Table table;
    std::vector<bench::Input> inputs;
    for (const fs::path& path : paths)
        inputs.push_back({path, specloom::test_support::fileBytes(path)});
    for (const bench::Input& input : inputs) {
        if (input.isJson())
            bench::benchJson(input, rounds, table);
        else
            bench::benchYaml(input, rounds, table);
    }
    for (const bench::Input& input : inputs)
        bench::benchTree(input, rounds, table);
    for (const bench::Input& input : inputs)
        bench::benchSchema(input, rounds, table);
    for (const bench::Input& input : inputs)
        bench::benchMemory(input, table);
    for (const bench::Input& input : inputs)
        bench::benchFormat(input, rounds, table);
    for (const bench::Input& input : inputs)
        bench::benchLint(input, rounds, table);
    for (const bench::Input& input : inputs)
        bench::benchFix(input, rounds, table);
    if (!specloom::test_support::corporaFolder().empty())
        benchDiffs(rounds, table);
    bench::benchStart(rounds, table);
    if (isWhole) {
        bench::benchGenerate(rounds, table);
        bench::benchGrowth((rounds + 4) / 5, table);
    }
    return table.allKept();
}

using Part = void (*)(int rounds, bench::Table& table);

/// What can be asked for by itself; null for another word.
Part partOf(std::string_view option) {
    return option == "--generate" ? bench::benchGenerate
           : option == "--growth" ? bench::benchGrowth
                                  : nullptr;
}

bool runPart(Part part, int rounds) {
    bench::Table table;
    part(rounds, table);
    return table.allKept();
}

} // namespace

int main(int argc, char** argv) {
    int rounds = 15;
    Part onlyPart = nullptr;
    std::vector<fs::path> paths;
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--rounds" && i + 1 < argc)
            rounds = std::atoi(argv[++i]);
        else if (const Part part = partOf(argv[i]))
            onlyPart = part;
        else
            paths.emplace_back(argv[i]);
    }
    const bool isWhole = paths.empty();
    if (isWhole && onlyPart == nullptr)
        paths = standardDocuments();
    if ((paths.empty() && onlyPart == nullptr) || rounds < 1) {
        fmt::print(stderr, usage);
        return 2;
    }
    try {
        return (onlyPart != nullptr ? runPart(onlyPart, rounds) : run(paths, isWhole, rounds)) ? 0 : 1;
    } catch (const std::exception& error) {
        fmt::print(stderr, "{}\n", error.what());
        return 2;
    }
}
