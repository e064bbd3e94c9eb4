#pragma once

#include "openapi_diff/formatter.h"

namespace specloom::openapi_diff {

/// {"status": "breaking"} and a line end.
class JSONStatusFormatter final : public BasicFormatter {
  public:
    explicit JSONStatusFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// An object of "metadata", "added", "removed", "deprecated" and "modified", and a line end.
class JSONChangelogFormatter final : public BasicFormatter {
  public:
    explicit JSONChangelogFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// An array with an object for each change, and a line end.
class JSONDetailsFormatter final : public BasicFormatter {
  public:
    explicit JSONDetailsFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

} // namespace specloom::openapi_diff
