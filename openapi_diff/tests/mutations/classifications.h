#pragma once

#include <map>      // std::map
#include <optional> // std::optional
#include <string>   // std::string

namespace specloom::openapi_diff::mutations {

/// The embedded table, read by lines: a second reading, apart from that of the program.
class Classifications {
  public:
    /// Takes the text of the file.
    explicit Classifications(const std::string& text);

    /// The level of an action ("add", "remove_item") of a key ("info.title"): 0 none, 1 non-functional, 2
    /// non-breaking, 3 breaking, 4 nested. The condition is the value of a flag.
    [[nodiscard]] int level(const std::string& key, const std::string& action,
                            std::optional<bool> condition = std::nullopt) const;

    /// Whether a key has this one level for all actions.
    [[nodiscard]] bool isNone(const std::string& key) const { return entries_.at(key) == "none"; }

  private:
    std::map<std::string, std::string> entries_; ///< what stands behind the colon, by key
};

} // namespace specloom::openapi_diff::mutations
