#pragma once

#include "code_morph/node.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

namespace specloom::code_morph::typescript {

/// A parameter of a function. Its type is either a text or a node that can write it; the text wins.
class Parameter final : public base::Node {
  public:
    Parameter(Node& parent, std::string name, std::string typeText)
        : Node(&parent), name_(std::move(name)), typeText_(std::move(typeText)) {}

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] const std::string& typeText() const noexcept { return typeText_; }
    [[nodiscard]] const Node* type() const noexcept { return type_; }
    void setType(const Node* type) noexcept { type_ = type; }
    [[nodiscard]] bool isOptional() const noexcept { return isOptional_; }
    void setOptional(bool isOptional) noexcept { isOptional_ = isOptional; }

    void write(std::string& out) const override;

  private:
    std::string name_;
    bool isOptional_ = false;
    std::string typeText_;
    const Node* type_ = nullptr;
};

/// A function declaration. Names, types and lines are source text, so that texts of documents come into them
/// as literals only.
class Function final : public base::Node {
  public:
    Function(Node& parent, std::string name) : Node(&parent), name_(std::move(name)) {}

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] bool isAsync() const noexcept { return isAsync_; }
    void setAsync(bool isAsync) noexcept { isAsync_ = isAsync; }
    [[nodiscard]] bool isExported() const noexcept { return isExported_; }
    void setExported(bool isExported) noexcept { isExported_ = isExported; }
    /// What writes the type; null for a function that is written without one.
    [[nodiscard]] const Node* returnType() const noexcept { return returnType_; }
    void setReturnType(const Node* type) noexcept { returnType_ = type; }
    /// Kept with the function, and not written.
    [[nodiscard]] const std::string& docComment() const noexcept { return docComment_; }
    void setDocComment(std::string text) { docComment_ = std::move(text); }

    /// Appends a parameter, which lives as long as the function.
    Parameter& addParameter(std::string name, std::string typeText);
    [[nodiscard]] const std::vector<std::unique_ptr<Parameter>>& parameters() const noexcept {
        return parameters_;
    }

    /// Appends trimLines(text) to the body: one entry, which may hold several lines.
    void addLine(std::string_view text);
    [[nodiscard]] const std::vector<std::string>& lines() const noexcept { return lines_; }

    void write(std::string& out) const override;

  private:
    std::string name_;
    bool isAsync_ = false;
    bool isExported_ = false;
    const Node* returnType_ = nullptr;
    std::vector<std::unique_ptr<Parameter>> parameters_;
    std::vector<std::string> lines_;
    std::string docComment_;
};

} // namespace specloom::code_morph::typescript
