#include "jv_generator/parts.h"

namespace specloom::jv_generator {

bool TruePart::generate(Context& /*context*/, jv::TreeBuilder& out) {
    out.addBoolean(true, {});
    return true;
}

bool FalsePart::generate(Context& /*context*/, jv::TreeBuilder& out) {
    out.addBoolean(false, {});
    return true;
}

bool BooleanPart::generate(Context& context, jv::TreeBuilder& out) {
    out.addBoolean(context.random().below(2) == 1, {});
    return true;
}

bool NullPart::generate(Context& /*context*/, jv::TreeBuilder& out) {
    out.addNull({});
    return true;
}

bool TruthyPart::generate(Context& context, jv::TreeBuilder& out) {
    context.generateFallback(out);
    return true;
}

bool EnumPart::generate(Context& context, jv::TreeBuilder& out) {
    out.addCopy(*values_[context.random().below(values_.size())]);
    return true;
}

} // namespace specloom::jv_generator
