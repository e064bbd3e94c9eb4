#include "bench/benchmarks.h"
#include "bench/measure.h"
#include "bench/process.h"

#include <cstdio>     // stderr
#include <filesystem> // std::filesystem
#include <fmt/core.h>
#include <stdexcept> // std::runtime_error
#include <unistd.h>  // getpid

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
void benchStart(int, Table&) {}

#endif

} // namespace specloom::bench
