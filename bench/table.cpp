#include "bench/table.h"

#include <cstdio> // std::fflush

#include <fmt/core.h>

namespace specloom::bench {

namespace {
constexpr const char* rowFormat = "| {:<44} | {:<31} | {:>10} | {:>10} | {:>6} | {:>6} | {:<4} |\n";
}

Table::Table() {
    fmt::print(rowFormat, "what", "document", "figure", "peer", "ratio", "target", "");
    fmt::print("|{0:-<46}|{0:-<33}|{0:->11}:|{0:->11}:|{0:->7}:|{0:->7}:|{0:-<6}|\n", "");
}

void Table::add(const Row& row) {
    const bool kept = row.ratio <= row.target;
    allKept_ = allKept_ && kept;
    fmt::print(rowFormat, row.what, row.document, row.figure, row.peer, fmt::format("{:.2f}", row.ratio),
               fmt::format("{:.2f}", row.target), kept ? "ok" : "over");
    std::fflush(stdout);
}

std::string milliseconds(double seconds) {
    return fmt::format("{:.1f} ms", seconds * 1e3);
}

std::string mebibytes(double bytes) {
    return fmt::format("{:.1f} MiB", bytes / (1024 * 1024));
}

} // namespace specloom::bench
