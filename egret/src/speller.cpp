#include "egret/speller.h"

#include <iterator> // std::back_inserter

#include <utf8cpp/utf8.h>

namespace specloom::egret {

void Speller::add(std::uint32_t symbol) {
    previous_ = palettes_[symbol].pick(previous_, draw_);
    if (previous_ < 0x80)
        text_.push_back(static_cast<char>(previous_));
    else
        utf8::unchecked::append(previous_, std::back_inserter(text_));
}

} // namespace specloom::egret
