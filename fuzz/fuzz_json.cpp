// The JSON reader: a text means the same in whatever chunks it arrives, and what is read survives being
// written.

#include "fuzz/check.h"
#include "jv/json_reader.h"

#include <algorithm> // std::min
#include <iterator>  // std::back_inserter

#include <fmt/format.h>

namespace {

using specloom::jv::DocumentFormat;
using specloom::jv::Handler;
using specloom::jv::JSONReader;
using specloom::jv::Pos;

/// Writes down what it hears.
class Recorder final : public Handler {
  public:
    explicit Recorder(bool rawNumbers) : Handler(rawNumbers) {}

    bool onString(std::string_view text, Pos pos) override { return note('s', text, pos); }
    bool onInteger(std::int64_t value, Pos pos) override { return note('i', std::to_string(value), pos); }
    bool onDouble(double value, Pos pos) override { return note('d', fmt::format("{}", value), pos); }
    bool onNumber(std::string_view text, Pos pos) override { return note('n', text, pos); }
    bool onStartObject(Pos pos) override { return note('{', "", pos); }
    bool onKey(std::string_view text, Pos pos) override { return note('k', text, pos); }
    bool onEndObject(Pos pos) override { return note('}', "", pos); }
    bool onStartArray(Pos pos) override { return note('[', "", pos); }
    bool onEndArray(Pos pos) override { return note(']', "", pos); }
    bool onBoolean(bool value, Pos pos) override { return note('b', value ? "true" : "false", pos); }
    bool onNull(Pos pos) override { return note('0', "", pos); }

    void noteStatus(JSONReader::Status status) {
        log_ += fmt::format("status {}\n", static_cast<int>(status));
    }
    [[nodiscard]] const std::string& log() const noexcept { return log_; }

  private:
    bool note(char event, std::string_view text, Pos pos) {
        fmt::format_to(std::back_inserter(log_), "{} {} {}:{}\n", event, text, pos.line, pos.column);
        return true;
    }

    std::string log_;
};

/// The events of the text, given in chunks of 1 to `largest` bytes.
std::string eventsOf(std::string_view text, std::uint32_t flags, bool rawNumbers, std::uint64_t draw,
                     std::size_t largest) {
    Recorder recorder(rawNumbers);
    JSONReader reader(recorder, flags);
    JSONReader::Status status = JSONReader::Status::Good;
    do {
        draw = draw * 6364136223846793005u + 1442695040888963407u;
        const std::size_t size = std::min<std::size_t>(1 + (draw >> 33) % largest, text.size());
        // A copy of its own, so that reading beyond the chunk is noticed.
        const std::string chunk(text.substr(0, size));
        text.remove_prefix(size);
        status = reader.parse(chunk);
    } while (status == JSONReader::Status::Good && !text.empty());
    if (status == JSONReader::Status::Good)
        status = reader.finish();
    recorder.noteStatus(status);
    return recorder.log();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fuzz = specloom::fuzz;
    const std::string_view text = fuzz::textOf(data, size);
    const std::uint64_t draw = fuzz::drawFrom(text);
    for (const std::uint32_t flags : {std::uint32_t{0}, static_cast<std::uint32_t>(draw % 32)}) {
        const bool raw = (draw & 32) != 0;
        const std::string whole = eventsOf(text, flags, raw, 0, size + 1);
        fuzz::require(eventsOf(text, flags, raw, draw, 1) == whole, "byte by byte it is the same");
        fuzz::require(eventsOf(text, flags, raw, draw, 16) == whole, "in chunks it is the same");
    }
    if (const auto document = fuzz::readIfGood(text, DocumentFormat::Json))
        for (const DocumentFormat format : {DocumentFormat::Json, DocumentFormat::Yaml})
            if (fuzz::canBeKept(*document, format))
                fuzz::requireRoundTrip(*document, format, static_cast<std::int32_t>(draw % 10));
    return 0;
}
