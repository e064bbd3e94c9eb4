#include "bench/benchmarks.h"
#include "bench/configuration_text.h"
#include "bench/measure.h"
#include "bench/process.h"
#include "openapi/reader.h"
#include "openapi_diff/differ.h"
#include "test_support/read_tree.h"

#include <filesystem> // std::filesystem
#include <fstream>    // std::ofstream
#include <memory>     // std::unique_ptr
#include <sstream>    // std::ostringstream

#include <fmt/core.h>
#include <unistd.h> // getpid

namespace specloom::bench {
namespace {

namespace fs = std::filesystem;

/// Both documents as files of their own in a folder that goes away with them, and their formats.
class Pair {
  public:
    Pair(const Input& source, const Input& destination)
        : folder_(fs::temp_directory_path() / fmt::format("specloom_bench_{}", getpid())) {
        fs::create_directories(folder_);
        source_ = write("source", source);
        destination_ = write("destination", destination);
        test_support::ReadTree first = test_support::readTree(destination_);
        formats_ = std::move(first.formats);
        configuration_ = (folder_ / "configuration.json").string();
        std::ofstream(configuration_) << configurationText("", first.unknownFormats);
    }
    Pair(const Pair&) = delete;
    Pair& operator=(const Pair&) = delete;
    ~Pair() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    [[nodiscard]] std::unique_ptr<openapi::ReadResult> readSource() const {
        return openapi::readFile(source_, formats_);
    }
    [[nodiscard]] std::unique_ptr<openapi::ReadResult> readDestination() const {
        return openapi::readFile(destination_, formats_);
    }
    /// The path of a configuration file that allows the formats.
    [[nodiscard]] const std::string& configuration() const noexcept { return configuration_; }
    [[nodiscard]] const std::string& source() const noexcept { return source_; }
    [[nodiscard]] const std::string& destination() const noexcept { return destination_; }

  private:
    [[nodiscard]] std::string write(const char* name, const Input& input) const {
        const fs::path path = folder_ / (name + input.path.extension().string());
        std::ofstream(path, std::ios::binary) << input.text;
        return path.string();
    }

    fs::path folder_;
    std::string source_;
    std::string destination_;
    std::string configuration_;
    std::shared_ptr<openapi::SchemaFormatRegistry> formats_;
};

/// Reading, comparing and the report; against reading alone.
void benchTimes(const Pair& pair, const std::string& name, double target, int rounds, Table& table) {
    Samples whole, reading;
    for (int round = 0; round < rounds; ++round) {
        reading.add(seconds([&] {
            const auto source = pair.readSource();
            const auto destination = pair.readDestination();
        }));
        whole.add(seconds([&] {
            const auto source = pair.readSource();
            const auto destination = pair.readDestination();
            std::ostringstream out;
            openapi_diff::Differ(out).run(*source, *destination);
        }));
    }
    table.add({"diff / read both into trees", name, milliseconds(whole.median()),
               milliseconds(reading.median()), whole.median() / reading.median(), target});
}

#ifdef SPECLOOM_PROGRAM

void benchPeak(const Pair& pair, const std::string& name, double bytes, Table& table) {
    constexpr int whenBreaking = 1;
    const double peak = runProcess({SPECLOOM_PROGRAM, "diff", "--config", pair.configuration(), pair.source(),
                                    pair.destination()},
                                   whenBreaking)
                            .peakBytes;
    table.add(
        {"peak memory of diff / size of both", name, mebibytes(peak), mebibytes(bytes), peak / bytes, 15});
}

#else

void benchPeak(const Pair&, const std::string&, double, Table&) {}

#endif

} // namespace

void benchDiff(const Input& source, const Input& destination, int rounds, Table& table) {
    const Pair pair(source, destination);
    const std::string name = fmt::format("{} > {}", source.name(), destination.name());
    benchTimes(pair, name, 2.5, rounds, table);
    benchPeak(pair, name, static_cast<double>(source.text.size() + destination.text.size()), table);
}

void benchDiffOfItself(const Input& input, int rounds, Table& table) {
    benchTimes(Pair(input, input), input.name() + " > itself", 1.3, rounds, table);
}

} // namespace specloom::bench
