#pragma once

#include <string> // std::string
#include <vector> // std::vector

namespace specloom::bench {

/// One promise, held against one document.
struct Row {
    std::string what;     ///< for instance "read JSON / RapidJSON DOM"
    std::string document; ///< file name
    std::string figure;   ///< ours, with its unit
    std::string peer;     ///< what it is held against, with its unit; may be empty
    double ratio;         ///< the promise is about this one
    double target;        ///< the most that is promised
};

/// Prints the rows as a Markdown table on standard output, as they come.
class Table {
  public:
    Table();
    void add(const Row& row);
    [[nodiscard]] bool allKept() const noexcept { return allKept_; }

  private:
    bool allKept_ = true;
};

[[nodiscard]] std::string milliseconds(double seconds);
[[nodiscard]] std::string mebibytes(double bytes);

} // namespace specloom::bench
