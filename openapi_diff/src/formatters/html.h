#pragma once

#include "openapi_diff/formatter.h"

namespace specloom::openapi_diff {

/// A page with the level and how many changes there are.
class HTMLStatusFormatter final : public BasicFormatter {
  public:
    explicit HTMLStatusFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// A page with what happened to the metadata and the operations.
class HTMLChangelogFormatter final : public BasicFormatter {
  public:
    explicit HTMLChangelogFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

/// A page with a table of the changes.
class HTMLDetailsFormatter final : public BasicFormatter {
  public:
    explicit HTMLDetailsFormatter(std::ostream& stream) : BasicFormatter(stream) {}
    void format(const Report& report) override;
};

} // namespace specloom::openapi_diff
