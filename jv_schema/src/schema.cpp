#include "jv_schema/schema.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"

#include <optional> // std::optional
#include <utility>  // std::move

namespace specloom::jv::schema {

Schema Schema::compile(const JV& schema, const CompileOptions& options) {
    return Schema(Compiler(options).compile(schema));
}

bool Schema::isValid(const JV& instance) const {
    Evaluation evaluation(*program_, Evaluation::Mode::Decide);
    try {
        return evaluation.apply(*program_->root, instance);
    } catch (const Refusal&) {
        return false;
    }
}

std::vector<ValidationError> Schema::validate(const JV& instance) const {
    // Most instances are valid, and deciding so is far cheaper than looking for what to say.
    std::optional<ValidationError> undecided;
    try {
        Evaluation evaluation(*program_, Evaluation::Mode::Decide);
        if (evaluation.apply(*program_->root, instance))
            return {};
    } catch (const Refusal& refusal) {
        if (refusal.isFinal)
            return {refusal.error};
        undecided = refusal.error;
    }
    Evaluation evaluation(*program_, Evaluation::Mode::Explain);
    try {
        static_cast<void>(evaluation.apply(*program_->root, instance));
    } catch (const Refusal& refusal) {
        return {refusal.error};
    } catch (const Enough&) {
        // There are errors enough.
    }
    std::vector<ValidationError> errors = evaluation.takeErrors();
    if (errors.empty() && undecided)
        errors.push_back(*undecided);
    return errors;
}

} // namespace specloom::jv::schema
