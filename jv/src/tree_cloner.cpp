#include "jv/tree_cloner.h"

namespace specloom::jv {

std::unique_ptr<JV> TreeCloner::clone(const JV& source) {
    auto root = std::make_unique<JV>();
    open_.push_back({&source, root.get()});
    while (!open_.empty()) {
        const Task task = open_.back();
        open_.pop_back();
        copyShallow(*task.source, *task.copy);
    }
    return root;
}

/// Copies a scalar; of a container makes empty children and leaves their content for later.
void TreeCloner::copyShallow(const JV& source, JV& copy) {
    switch (source.kind()) {
    case Kind::Null:
        break;
    case Kind::Boolean:
        copy.setBoolean(source.boolean());
        break;
    case Kind::Number:
        copy.setNumber(source.number());
        break;
    case Kind::String:
        copy.setString(source.text());
        copy.raise(source.flags_ & JV::plainScalar);
        break;
    case Kind::Array:
        copy.makeArray();
        for (const JV* element : source.elements())
            open_.push_back({element, copy.appendNull()});
        break;
    case Kind::Object:
        copy.makeObject();
        if (source.size() != 0)
            copy.growEntries(source.size());
        // Byte-wise order makes each key the last one, so the copy knows that it is sorted.
        for (const Member member : source.members())
            open_.push_back({member.value, copy.setNull(member.key)});
        break;
    }
}

void TreeCloner::moveContent(JV& source, JV& target) noexcept {
    constexpr unsigned contentFlags = JV::ownsBlock | JV::inlineText | JV::plainScalar;
    target.become(source.kind_);
    target.detail_ = source.detail_;
    target.payload_ = source.payload_;
    target.raise(source.flags_ & contentFlags);
    source.lower(contentFlags);
    source.kind_ = Kind::Null;
}

} // namespace specloom::jv
