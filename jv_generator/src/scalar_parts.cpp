#include "jv/jv_document.h"
#include "jv_generator/parts.h"

namespace specloom::jv_generator {

using jv::JV;

/// Sets a value to a copy of another.
void copyValue(const JV& from, JV& to) {
    switch (from.kind()) {
    case jv::Kind::Null:
        return to.setNull();
    case jv::Kind::Boolean:
        return to.setBoolean(from.boolean());
    case jv::Kind::Number:
        return to.setNumber(from.number());
    case jv::Kind::String:
        return to.setString(from.text());
    case jv::Kind::Array:
        to.setNull();
        to.makeArray();
        for (const JV* element : from.elements())
            to.append(jv::JVDocument::clone(*element));
        return;
    case jv::Kind::Object:
        to.setNull();
        to.makeObject();
        for (const jv::Member member : from.members())
            to.set(member.key, jv::JVDocument::clone(*member.value));
        return;
    }
}

bool TruePart::generate(Context& /*context*/, JV& out) {
    out.setBoolean(true);
    return true;
}

bool FalsePart::generate(Context& /*context*/, JV& out) {
    out.setBoolean(false);
    return true;
}

bool BooleanPart::generate(Context& context, JV& out) {
    out.setBoolean(context.random().below(2) == 1);
    return true;
}

bool NullPart::generate(Context& /*context*/, JV& out) {
    out.setNull();
    return true;
}

bool TruthyPart::generate(Context& context, JV& out) {
    context.generateFallback(out);
    return true;
}

bool EnumPart::generate(Context& context, JV& out) {
    copyValue(*values_[context.random().below(values_.size())], out);
    return true;
}

} // namespace specloom::jv_generator
