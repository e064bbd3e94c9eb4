#pragma once

#include "egret/palette.h"
#include "egret/strings.h"

#include <cstdint> // std::uint32_t
#include <string>  // std::string
#include <utility> // std::move
#include <vector>  // std::vector

namespace specloom::egret {

/// Makes a text of symbols, one character for each, drawn from their palettes.
class Speller {
  public:
    /// Both outlive it.
    Speller(const std::vector<Palette>& palettes, const Draw& draw) : palettes_(palettes), draw_(draw) {}

    void add(std::uint32_t symbol);
    /// The text, in UTF-8, which is then gone.
    [[nodiscard]] std::string take() { return std::move(text_); }

  private:
    const std::vector<Palette>& palettes_;
    const Draw& draw_;
    std::string text_;
    char32_t previous_ = 0;
};

} // namespace specloom::egret
