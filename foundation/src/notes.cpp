#include "foundation/notes.h"

#include <algorithm> // std::replace
#include <ostream>   // std::ostream

namespace specloom {

void Notes::add(const Message& text) const {
    if (stream_ == nullptr)
        return;
    std::string line = text.composed();
    std::replace(line.begin(), line.end(), '\n', ' ');
    *stream_ << "specloom: note: " << line << '\n';
}

} // namespace specloom
