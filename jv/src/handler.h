#pragma once

#include "jv/pos.h"

#include <cstdint>     // std::int64_t
#include <string_view> // std::string_view

namespace specloom::jv {

/// Receives the events of a JSON text. Each returns true to go on and false to stop the parse.
/// Texts are good only during the call.
class Handler {
  public:
    virtual ~Handler() = default;

    virtual bool onString(std::string_view text, Pos pos) = 0;
    virtual bool onInteger(std::int64_t value, Pos pos) = 0;
    virtual bool onDouble(double value, Pos pos) = 0;
    /// A number as its source text.
    virtual bool onNumber(std::string_view text, Pos pos) = 0;
    virtual bool onStartObject(Pos pos) = 0;
    virtual bool onKey(std::string_view text, Pos pos) = 0;
    virtual bool onEndObject(Pos pos) = 0;
    virtual bool onStartArray(Pos pos) = 0;
    virtual bool onEndArray(Pos pos) = 0;
    virtual bool onBoolean(bool value, Pos pos) = 0;
    virtual bool onNull(Pos pos) = 0;

    /// When set, every number arrives through onNumber(), else through onInteger() or onDouble().
    [[nodiscard]] bool rawNumbers() const noexcept { return rawNumbers_; }

  protected:
    Handler() = default;
    explicit Handler(bool rawNumbers) : rawNumbers_(rawNumbers) {}
    Handler(const Handler&) = default;
    Handler& operator=(const Handler&) = default;

  private:
    bool rawNumbers_ = false;
};

} // namespace specloom::jv
