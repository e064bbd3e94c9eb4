#include "jv_schema/schema.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"

#include <utility> // std::move

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
    if (isValid(instance))
        return {};
    Evaluation evaluation(*program_, Evaluation::Mode::Explain);
    try {
        static_cast<void>(evaluation.apply(*program_->root, instance));
    } catch (const Refusal& refusal) {
        return {refusal.error};
    }
    return evaluation.takeErrors();
}

} // namespace specloom::jv::schema
