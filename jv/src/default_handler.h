#pragma once

#include "jv/handler.h"
#include "jv/tree_builder.h"

#include <memory> // std::unique_ptr

namespace specloom::jv {

/// Builds a document from parse events. Numbers arrive as text, so that none of their digits is lost.
/// Throws JSONReaderError with "context_pop: Bottom of stack reached prematurely" when more containers end
/// than began, and "context_add_value: Object key is not a string (" with the kind and ")" for a value where
/// a key is due.
class DefaultHandler final : public Handler {
  public:
    explicit DefaultHandler(std::unique_ptr<JVDocument> document)
        : Handler(true), builder_(std::move(document)) {}

    bool onString(std::string_view text, Pos pos) override;
    bool onInteger(std::int64_t value, Pos pos) override;
    bool onDouble(double value, Pos pos) override;
    bool onNumber(std::string_view text, Pos pos) override;
    bool onStartObject(Pos pos) override;
    bool onKey(std::string_view text, Pos pos) override;
    bool onEndObject(Pos pos) override;
    bool onStartArray(Pos pos) override;
    bool onEndArray(Pos pos) override;
    bool onBoolean(bool value, Pos pos) override;
    bool onNull(Pos pos) override;

    [[nodiscard]] std::unique_ptr<JVDocument> takeDocument() noexcept { return builder_.takeDocument(); }

  private:
    void requireNoKeyDue(Kind kind) const;
    [[nodiscard]] bool keyDue() const noexcept {
        return builder_.hasOpenContainer() && builder_.inObject() && !builder_.keyPending();
    }
    bool endContainer();

    TreeBuilder builder_;
};

} // namespace specloom::jv
