#pragma once

#include <algorithm> // std::sort
#include <ctime>     // clock_gettime
#include <vector>    // std::vector

#include <malloc.h> // malloc_trim

namespace specloom::bench {

/// Processor seconds that `work` takes. Processor and not wall time, because other programs may be running;
/// what is measured this way has one thread and waits for nothing. Each work starts with an empty heap, as in
/// a process of its own, so that none profits from memory that its predecessor has touched already.
template <typename Work>
[[nodiscard]] double seconds(Work work) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    malloc_trim(0);
    const double start = now();
    work();
    return now() - start;
}

/// The results of several rounds. The contestants of a comparison take turns, so that whatever slows the
/// machine down for a while slows all of them.
class Samples {
  public:
    void add(double value) { values_.push_back(value); }
    [[nodiscard]] double median() const;

  private:
    std::vector<double> values_;
};

} // namespace specloom::bench
