#include "openapi_diff/node_diff_config.h"

#include "foundation/unreachable.h"

namespace specloom::openapi_diff {
namespace {

Action conditional(bool condition, Action whenTrue, Action whenFalse) noexcept {
    return condition ? whenTrue : whenFalse;
}

} // namespace

ChangeLevel NodeDiffConfig::lookup(ChangeKind kind, std::optional<bool> condition) const {
    switch (kind) {
    case ChangeKind::PropertyAdded:
        return get(condition ? conditional(*condition, Action::AddThen, Action::AddElse) : Action::Add);
    case ChangeKind::PropertyRemoved:
        return get(condition ? conditional(*condition, Action::RemoveThen, Action::RemoveElse)
                             : Action::Remove);
    case ChangeKind::PropertyModified:
        return get(condition ? conditional(*condition, Action::ModifyThen, Action::ModifyElse)
                             : Action::Modify);
    case ChangeKind::KeyAdded:
    case ChangeKind::ElementAdded:
        return get(Action::AddItem);
    case ChangeKind::KeyRemoved:
    case ChangeKind::ElementRemoved:
        return get(Action::RemoveItem);
    case ChangeKind::KeyModified:
    case ChangeKind::ElementModified:
        return get(Action::ModifyItem);
    case ChangeKind::ExtensionAdded:
        return get(Action::Add);
    case ChangeKind::ExtensionRemoved:
        return get(Action::Remove);
    case ChangeKind::ExtensionModified:
        return get(Action::Modify);
    default:
        SPECLOOM_UNREACHABLE("Unknown change kind");
    }
}

} // namespace specloom::openapi_diff
