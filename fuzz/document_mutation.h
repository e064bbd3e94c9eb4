#pragma once

#include "jv/jv_document.h"

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::fuzz {

/// The input as a source of choices; zeros behind its end.
class Choices {
  public:
    explicit Choices(std::string_view input) : rest_(input) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    /// A number below `limit`, which is above 0.
    [[nodiscard]] std::size_t below(std::size_t limit) {
        std::size_t value = 0;
        for (std::size_t reach = 1; reach < limit && !rest_.empty(); reach *= 256) {
            value = value * 256 + static_cast<unsigned char>(rest_.front());
            rest_.remove_prefix(1);
        }
        return value % limit;
    }

  private:
    std::string_view rest_;
};

/// The texts of documents to change, in JSON: our own small ones, and those of the corpora, where there are
/// any, of at most `largest` bytes; larger ones would only slow the search down. The first call decides.
[[nodiscard]] const std::vector<std::string>& documentTexts(std::size_t largest);

/// Changes one place of `document`: removes or renames a member, swaps a kind, sets a text, copies a value
/// from elsewhere, or redirects a reference. The document has to be indexed anew after the last change.
void mutate(jv::JVDocument& document, Choices& choices);

} // namespace specloom::fuzz
