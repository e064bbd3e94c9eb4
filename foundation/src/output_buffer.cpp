#include "foundation/output_buffer.h"

#include "foundation/descriptor.h"

#include <cstring>     // std::memcpy
#include <string_view> // std::string_view

namespace specloom {

OutputBuffer::OutputBuffer(int descriptor) : descriptor_(descriptor) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
}

bool OutputBuffer::isAtLineStart() const noexcept {
    return (pptr() == pbase() ? last_ : pptr()[-1]) == '\n';
}

OutputBuffer::int_type OutputBuffer::overflow(int_type character) {
    if (!empty())
        return traits_type::eof();
    if (!traits_type::eq_int_type(character, traits_type::eof()))
        sputc(traits_type::to_char_type(character));
    return traits_type::not_eof(character);
}

std::streamsize OutputBuffer::xsputn(const char* bytes, std::streamsize count) {
    const auto size = static_cast<std::size_t>(count);
    if (count > epptr() - pptr()) {
        if (!empty())
            return 0;
        if (size >= buffer_.size())
            return put(bytes, size) ? count : 0;
    }
    if (size > 0) // an empty text may have no place
        std::memcpy(pptr(), bytes, size);
    pbump(static_cast<int>(count));
    return count;
}

int OutputBuffer::sync() {
    return empty() ? 0 : -1;
}

bool OutputBuffer::put(const char* bytes, std::size_t count) {
    if (count == 0)
        return true;
    last_ = bytes[count - 1];
    return writeWhole(descriptor_, {bytes, count});
}

bool OutputBuffer::empty() {
    const auto count = static_cast<std::size_t>(pptr() - pbase());
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    return put(buffer_.data(), count); // what fails is lost, so that it is not tried again at every character
}

} // namespace specloom
