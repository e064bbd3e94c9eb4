#include "jv/read_stream.h"

#include <algorithm> // std::max
#include <cstring>   // std::memcpy
#include <istream>   // std::istream
#include <stdexcept> // std::runtime_error

namespace specloom::jv {

namespace {

constexpr std::size_t firstGuess = std::size_t{64} * 1024;

/// Bytes from here to the end, where the stream can tell; 0 where it cannot.
std::size_t remainingBytes(std::istream& stream) {
    const auto here = stream.tellg();
    if (here == std::istream::pos_type(-1)) {
        stream.clear();
        return 0;
    }
    stream.seekg(0, std::ios::end);
    const auto end = stream.tellg();
    stream.clear();
    stream.seekg(here);
    return end > here ? static_cast<std::size_t>(end - here) : 0;
}

} // namespace

StreamText readStream(std::istream& stream) {
    if (!stream)
        throw std::runtime_error("Failed to read input");
    // One byte more than is expected: a full buffer then means that there is more, and the end is seen at
    // once. The memory is left unfilled, which for 10 MB costs as much as reading them.
    std::size_t capacity = std::max(remainingBytes(stream) + 1, firstGuess);
    StreamText text{std::make_unique_for_overwrite<char[]>(capacity)};
    for (;;) {
        stream.read(text.bytes.get() + text.size, static_cast<std::streamsize>(capacity - text.size));
        text.size += static_cast<std::size_t>(stream.gcount());
        if (stream.bad() || (stream.fail() && !stream.eof()))
            throw std::runtime_error("Failed to read input");
        if (stream.eof())
            return text;
        auto larger = std::make_unique_for_overwrite<char[]>(capacity * 2);
        std::memcpy(larger.get(), text.bytes.get(), text.size);
        text.bytes = std::move(larger);
        capacity *= 2;
    }
}

} // namespace specloom::jv
