#include "code_morph_typescript/function.h"

#include "foundation/strings.h"

namespace specloom::code_morph::typescript {

void Parameter::write(std::string& out) const {
    out += name_;
    if (isOptional_)
        out += '?';
    if (typeText_.empty() && type_ == nullptr)
        return;
    out += ": ";
    if (typeText_.empty())
        type_->write(out);
    else
        out += typeText_;
}

Parameter& Function::addParameter(std::string name, std::string typeText) {
    parameters_.push_back(std::make_unique<Parameter>(*this, std::move(name), std::move(typeText)));
    return *parameters_.back();
}

void Function::addLine(std::string_view text) {
    lines_.push_back(trimLines(text));
}

void Function::write(std::string& out) const {
    if (isExported_)
        out += "export ";
    if (isAsync_)
        out += "async ";
    ((out += "function ") += name_) += '(';
    for (const auto& parameter : parameters_) {
        if (parameter != parameters_.front())
            out += ", ";
        parameter->write(out);
    }
    out += ')';
    if (returnType_ != nullptr) {
        out += ": ";
        returnType_->write(out);
    }
    out += " {\n";
    for (const std::string& line : lines_)
        (out += indentLines(line + '\n', 2)) += '\n'; // with its end, an empty line is one too
    out += "}\n";
}

} // namespace specloom::code_morph::typescript
