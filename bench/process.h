#pragma once

#include <string> // std::string
#include <vector> // std::vector

namespace specloom::bench {

struct ProcessRun {
    double wallSeconds;
    double cpuSeconds; ///< user and system
    double peakBytes;  ///< largest resident set
};

/// Runs a program to its end, with nothing on standard input and its output and errors thrown away. Throws
/// std::runtime_error with its name when it cannot be started or ends with a status above `highestStatus`.
ProcessRun runProcess(const std::vector<std::string>& arguments, int highestStatus = 0);

} // namespace specloom::bench
