#pragma once

#include "jv/jv.h"
#include "openapi_lint/types.h"

#include <functional>  // std::less
#include <map>         // std::map
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move

namespace specloom::openapi_lint {

/// A named choice of rules with their severities and, where they are not the rule's own, their options.
class Ruleset {
  public:
    struct Entry {
        Severity severity;
        std::unique_ptr<jv::JV> options; ///< null when the ruleset sets none
    };
    /// By rule id, in byte-wise order.
    using Entries = std::map<std::string, Entry, std::less<>>;

    virtual ~Ruleset() = default;
    Ruleset(const Ruleset&) = delete;
    Ruleset& operator=(const Ruleset&) = delete;

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] const Entries& entries() const noexcept { return entries_; }

  protected:
    explicit Ruleset(std::string_view name) : name_(name) {}

    /// Inserts or replaces.
    void add(std::string_view id, Severity severity, std::unique_ptr<jv::JV> options = nullptr) {
        entries_.insert_or_assign(std::string(id), Entry{severity, std::move(options)});
    }

  private:
    std::string name_;
    Entries entries_;
};

} // namespace specloom::openapi_lint
