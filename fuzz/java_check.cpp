#include "fuzz/java_check.h"

#include <algorithm> // std::min
#include <cstddef>   // std::size_t

namespace specloom::fuzz {
namespace {

constexpr std::string_view codeSigns =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_$@.,;:=(){}[]<>-/ \t\r\n";

/// The code without its comments and literals.
class Skeleton {
  public:
    explicit Skeleton(std::string_view text) : text_(text) {}

    std::string fault() {
        while (at_ < text_.size() && fault_.empty()) {
            if (text_.substr(at_).starts_with("//"))
                at_ = std::min(text_.find('\n', at_), text_.size());
            else if (text_[at_] == '"')
                literal();
            else
                code_ += text_[at_++];
        }
        return fault_;
    }
    [[nodiscard]] const std::string& code() const noexcept { return code_; }

  private:
    void literal() {
        for (++at_; at_ < text_.size() && text_[at_] != '"'; ++at_) {
            if (static_cast<unsigned char>(text_[at_]) < 0x20)
                fault_ = "a control character in a literal";
            if (text_[at_] == '\\')
                escape();
        }
        if (at_ == text_.size())
            fault_ = "a literal that does not end";
        ++at_;
    }

    /// Escapes by number are replaced before a compiler looks for the ends of literals and of lines.
    void escape() {
        ++at_;
        if (text_.substr(at_, 1) != "u")
            return;
        const std::string_view digits = text_.substr(at_ + 1, 4);
        if (digits.size() < 4 || digits.find_first_not_of("0123456789abcdefABCDEF") != std::string_view::npos)
            fault_ = "an escape without its digits";
        for (const std::string_view forbidden : {"0022", "005c", "005C", "000a", "000A", "000d", "000D"})
            if (digits == forbidden)
                fault_ = "an escape that ends a literal";
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::string code_;
    std::string fault_;
};

bool isClosed(std::string_view code) {
    std::string open;
    for (const char sign : code) {
        constexpr std::string_view brackets = "(){}[]<>";
        const std::size_t bracket = brackets.find(sign);
        if (bracket == std::string_view::npos)
            continue;
        if (bracket % 2 == 0) {
            open += brackets[bracket + 1];
        } else {
            if (open.empty() || open.back() != sign)
                return false;
            open.pop_back();
        }
    }
    return open.empty();
}

bool isWordSign(char sign) {
    return codeSigns.substr(0, codeSigns.find('@')).find(sign) != std::string_view::npos;
}

/// How many classes the code declares, and whether `name` is one of them.
std::size_t countDeclarations(const std::string& code, std::string_view name, bool& isDeclared) {
    std::size_t count = 0;
    for (const std::string_view keyword : {"class ", "interface ", "record ", "enum "})
        for (std::size_t at = code.find(keyword); at != std::string::npos; at = code.find(keyword, at + 1)) {
            if (at > 0 && isWordSign(code[at - 1]))
                continue;
            ++count;
            const std::string_view declared = std::string_view(code).substr(at + keyword.size());
            isDeclared = isDeclared || (declared.starts_with(name) && declared.substr(name.size(), 1) == " ");
        }
    return count;
}

} // namespace

std::string faultOfJava(std::string_view path, std::string_view text) {
    Skeleton skeleton(text);
    if (std::string fault = skeleton.fault(); !fault.empty())
        return fault;
    const std::string& code = skeleton.code();
    if (code.find_first_not_of(codeSigns) != std::string::npos)
        return "a sign that no template has";
    if (!isClosed(code))
        return "brackets that are not closed";
    const std::string_view file = path.substr(path.rfind('/') + 1);
    bool isDeclared = false;
    if (countDeclarations(code, file.substr(0, file.rfind('.')), isDeclared) != 1 || !isDeclared)
        return "not the one class that it is called after";
    return "";
}

} // namespace specloom::fuzz
