#include "bench/benchmarks.h"
#include "bench/configuration_text.h"
#include "bench/measure.h"
#include "bench/process.h"
#include "test_support/read_tree.h"

#include <cstdio>     // stderr
#include <filesystem> // std::filesystem
#include <fstream>    // std::ofstream
#include <stdexcept>  // std::runtime_error
#include <string>     // std::string

#include <fmt/core.h>
#include <unistd.h> // getpid

namespace specloom::bench {

namespace fs = std::filesystem;

#ifdef SPECLOOM_PROGRAM

namespace {

/// A name for output, removed with whatever was written there.
class TemporaryFile {
  public:
    explicit TemporaryFile(const char* extension)
        : path_(fs::temp_directory_path() / fmt::format("specloom_bench_{}{}", getpid(), extension)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    [[nodiscard]] std::string path() const { return path_.string(); }

  private:
    fs::path path_;
};

} // namespace

void benchFormat(const Input& input, int rounds, Table& table) {
    const TemporaryFile output(".json");
    const std::vector<std::string> format = {SPECLOOM_PROGRAM, "format", "--output", output.path(),
                                             input.path.string()};
    if (input.isJson()) {
        const auto size = static_cast<double>(input.text.size());
        const double peak = runProcess(format).peakBytes;
        table.add({"peak memory of format / size of the JSON", input.name(), mebibytes(peak), mebibytes(size),
                   peak / size, 5});
        return;
    }
    try {
        runProcess(format);
    } catch (const std::runtime_error&) {
        // JSON output of numbers with 21 and more digits ends the program.
        fmt::print(stderr, "{} is not written as JSON\n", input.name());
        return;
    }
    Samples ours, peer;
    for (int round = 0; round < rounds; ++round) {
        ours.add(runProcess(format).cpuSeconds);
        peer.add(runProcess({YAML_EVENT_LOOP, input.path.string()}).cpuSeconds);
    }
    table.add({"format YAML to JSON / event loop, processes", input.name(), milliseconds(ours.median()),
               milliseconds(peer.median()), ours.median() / peer.median(), 1.8});
}

void benchLint(const Input& input, int rounds, Table& table) {
    const test_support::ReadTree tree = test_support::readTree(input.path);
    if (tree.result == nullptr)
        return;
    for (const auto& [ruleset, limit] : {std::pair{"recommended", 3.0}, std::pair{"all", 4.0}}) {
        const TemporaryFile config(".config.json");
        std::ofstream(config.path()) << configurationText(
            fmt::format(R"("lint": {{"extends": ["{}"]}})", ruleset), tree.unknownFormats);
        const std::vector<std::string> lint = {SPECLOOM_PROGRAM, "lint", "--config", config.path(),
                                               input.path.string()};
        const auto size = static_cast<double>(input.text.size());
        const double peak = runProcess(lint).peakBytes;
        table.add({fmt::format("peak memory of lint ({}) / size", ruleset), input.name(), mebibytes(peak),
                   mebibytes(size), peak / size, 15});
        if (input.isJson())
            continue;
        Samples ours, peer;
        for (int round = 0; round < rounds; ++round) {
            ours.add(runProcess(lint).cpuSeconds);
            peer.add(runProcess({YAML_EVENT_LOOP, input.path.string()}).cpuSeconds);
        }
        table.add({fmt::format("lint ({}) / event loop, processes", ruleset), input.name(),
                   milliseconds(ours.median()), milliseconds(peer.median()), ours.median() / peer.median(),
                   limit});
    }
}

void benchFix(const Input& input, int rounds, Table& table) {
    const test_support::ReadTree tree = test_support::readTree(input.path);
    if (tree.result == nullptr)
        return;
    // Every published document lacks the identifier; what else could be mended stays.
    const TemporaryFile config(".config.json");
    std::ofstream(config.path()) << configurationText(
        R"("lint": {"extends": ["recommended"], "rules": {"id-defined": "error", "paths-well-formed": "off"}})",
        tree.unknownFormats);
    const TemporaryFile copy(input.isJson() ? ".json" : ".yaml");
    const std::vector<std::string> lint = {SPECLOOM_PROGRAM, "lint", "--config", config.path(), copy.path()};
    std::vector<std::string> fix = lint;
    fix.insert(fix.begin() + 2, "--fix");
    Samples ours, peer;
    for (int round = 0; round < rounds; ++round) {
        fs::copy_file(input.path, copy.path(), fs::copy_options::overwrite_existing);
        peer.add(runProcess(lint).cpuSeconds);
        ours.add(runProcess(fix).cpuSeconds);
    }
    table.add({"lint --fix of one finding / lint, processes", input.name(), milliseconds(ours.median()),
               milliseconds(peer.median()), ours.median() / peer.median(), 1.3});
}

void benchStart(int rounds, Table& table) {
    Samples ours, peer;
    for (int round = 0; round < rounds * 3; ++round) {
        ours.add(runProcess({SPECLOOM_PROGRAM, "--version"}).wallSeconds);
        peer.add(runProcess({"/bin/true"}).wallSeconds);
    }
    table.add({"specloom --version - /bin/true, milliseconds", "", milliseconds(ours.median()),
               milliseconds(peer.median()), (ours.median() - peer.median()) * 1e3, 10});
}

#else

void benchFormat(const Input&, int, Table&) {}
void benchLint(const Input&, int, Table&) {}
void benchFix(const Input&, int, Table&) {}
void benchStart(int, Table&) {}

#endif

} // namespace specloom::bench
