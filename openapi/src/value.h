#pragma once

#include "jv/jv.h"

#include <memory> // std::unique_ptr

namespace specloom::openapi {

/// A document value that a node keeps as it is, or its absence. A value that was read stays in the source
/// document, which lives as long as the tree (ReadResult); one that is set in code is copied.
class Value {
  public:
    /// Absent.
    Value() noexcept = default;
    /// A deep copy.
    explicit Value(const jv::JV& value);
    explicit Value(std::unique_ptr<jv::JV> value) noexcept
        : value_(value.release()), owned_(value_ != nullptr) {}
    Value(Value&& other) noexcept;
    Value& operator=(Value&& other) noexcept;
    ~Value() { release(); }

    /// `value` itself, which must outlive this object.
    [[nodiscard]] static Value borrow(const jv::JV& value) noexcept;

    [[nodiscard]] bool isSet() const noexcept { return value_ != nullptr; }
    /// Null when absent.
    [[nodiscard]] const jv::JV* get() const noexcept { return value_; }
    const jv::JV& operator*() const noexcept { return *value_; }
    const jv::JV* operator->() const noexcept { return value_; }

  private:
    void release() noexcept {
        if (owned_)
            delete value_;
    }

    const jv::JV* value_ = nullptr;
    bool owned_ = false;
};

} // namespace specloom::openapi
