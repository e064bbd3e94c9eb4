#include "openapi_diff/diff_context.h"

#include "openapi_diff/component_comparisons.h"

#include <algorithm> // std::equal, std::max
#include <cstddef>   // std::size_t
#include <utility>   // std::pair

namespace specloom::openapi_diff {
namespace {

constexpr std::size_t usualDepth = 16;

bool isNodeLevel(ChangeKind kind) noexcept {
    return kind == ChangeKind::Added || kind == ChangeKind::Removed || kind == ChangeKind::Modified;
}

bool isAdding(ChangeKind kind) noexcept {
    return kind == ChangeKind::Added || kind == ChangeKind::PropertyAdded || kind == ChangeKind::KeyAdded ||
           kind == ChangeKind::ElementAdded || kind == ChangeKind::ExtensionAdded;
}

bool isRemoving(ChangeKind kind) noexcept {
    return kind == ChangeKind::Removed || kind == ChangeKind::PropertyRemoved ||
           kind == ChangeKind::KeyRemoved || kind == ChangeKind::ElementRemoved ||
           kind == ChangeKind::ExtensionRemoved;
}

/// Added, Removed and Modified, and the three of properties, stand in this order in each family of kinds.
ChangeKind inFamily(ChangeKind kind, ChangeKind from, ChangeKind to) noexcept {
    return static_cast<ChangeKind>(static_cast<int>(to) + static_cast<int>(kind) - static_cast<int>(from));
}

/// The kind of change that a scope makes of one of its nodes.
ChangeKind kindIn(const DiffScope& scope, ChangeKind nodeKind) noexcept {
    const ChangeKind family = scope.isEntry       ? ChangeKind::KeyAdded
                              : scope.index == -1 ? ChangeKind::PropertyAdded
                                                  : ChangeKind::ElementAdded;
    return inFamily(nodeKind, ChangeKind::Added, family);
}

/// A value has nothing below it that could be as bad as anything.
ChangeLevel levelOfValue(ChangeLevel level) noexcept {
    return level == ChangeLevel::Nested ? ChangeLevel::None : level;
}

/// Whether what stands behind the first change of a scope, a node's, is part of that change.
bool makesParts(const Change& first) noexcept {
    return (first.kind == ChangeKind::Added || first.kind == ChangeKind::Removed) &&
           first.level != ChangeLevel::Nested;
}

void countRest(DiffScope& scope, const Change& change) {
    scope.restLevel = std::max(scope.restLevel, change.level);
    if (!change.isPart)
        scope.restWeight = std::max(scope.restWeight, change.weight);
    scope.restAllAdded = scope.restAllAdded && isAdding(change.kind);
    scope.restAllRemoved = scope.restAllRemoved && isRemoving(change.kind);
}

} // namespace

DiffContext::DiffContext(const Configuration& configuration, const openapi::ReadResult& source,
                         const openapi::ReadResult& destination, Report& report)
    : configuration_(configuration), source_(source), destination_(destination), report_(report),
      comparisons_(std::make_unique<ComponentComparisons>(*this)) {
    scopes_.reserve(usualDepth);
}

DiffContext::~DiffContext() = default;

bool DiffContext::areEqual(const openapi::ExclusiveLimit& a, const openapi::ExclusiveLimit& b) {
    if (a.index() != b.index())
        return false;
    if (const auto* number = std::get_if<number::Number>(&a); number != nullptr)
        return areEqual(*number, std::get<number::Number>(b));
    return std::get<bool>(a) == std::get<bool>(b);
}

bool DiffContext::areEqual(const openapi::SchemaExamples& a, const openapi::SchemaExamples& b) {
    const auto sameEntry = [](const openapi::NamedValue& one, const openapi::NamedValue& other) {
        return one.name() == other.name() && one.value->equals(*other.value);
    };
    return a.isArray == b.isArray &&
           std::equal(a.entries->begin(), a.entries->end(), b.entries->begin(), b.entries->end(), sameEntry);
}

// ---- scopes

DiffContext::Scope DiffContext::enter(const openapi::Node* source, const openapi::Node* destination,
                                      ConfigKey key) {
    open({.key = key, .source = source, .destination = destination});
    return Scope(*this);
}

DiffContext::Scope DiffContext::enterKey(const openapi::Node* source, const openapi::Node* destination,
                                         ConfigKey key, std::string_view name) {
    open({.key = key, .name = name, .isEntry = true, .source = source, .destination = destination});
    return Scope(*this);
}

DiffContext::Scope DiffContext::enterIndex(const openapi::Node* source, const openapi::Node* destination,
                                           ConfigKey key, std::int64_t index) {
    open({.key = key, .index = index, .source = source, .destination = destination});
    return Scope(*this);
}

void DiffContext::open(DiffScope scope) {
    scope.begin = changes_.size();
    if (!scopes_.empty()) {
        const DiffScope& outer = scopes_.back();
        scope.inPart = outer.inPart || (outer.begin < changes_.size() && makesParts(changes_[outer.begin]));
        scope.pathItem = outer.pathItem;
        scope.operation = outer.operation;
    }
    if (scope.isEntry)
        noteEnclosing(scope);
    scopes_.push_back(scope);
}

/// What changes of a scope for an entry of a map lie in.
void DiffContext::noteEnclosing(DiffScope& scope) {
    const auto entry = [&] {
        return &enclosing_.emplace_back(
            EnclosingEntry{scope.key, scope.name, scope.source, scope.destination});
    };
    switch (scope.key) {
    case ConfigKey::Paths:
    case ConfigKey::OpenAPIWebhooks:
    case ConfigKey::ComponentsPathItems:
    case ConfigKey::Callback:
        scope.pathItem = entry();
        scope.operation = nullptr;
        break;
    case ConfigKey::PathItemOperations:
        scope.operation = entry();
        break;
    default:
        break;
    }
}

void DiffContext::close() {
    const DiffScope scope = scopes_.back();
    scopes_.pop_back();
    if (changes_.size() == scope.begin)
        return;
    if (isNodeLevel(changes_[scope.begin].kind))
        closeMarked(scope);
    else if (scope.isItem())
        summarise(scope);
    else
        forward(scope);
}

void DiffContext::closeMarked(const DiffScope& scope) {
    Change& first = changes_[scope.begin];
    if (changes_.size() == scope.begin + 1)
        return drop(scope); // no difference was found
    if (first.level == ChangeLevel::Nested) {
        first.level = scope.restLevel;
        first.weight = scope.restWeight;
    }
    if (first.level == ChangeLevel::None)
        return drop(scope);
    first.kind = kindIn(scope, first.kind);
    first.name = scope.name;
    first.index = scope.index;
    first.node = scope.destination != nullptr ? scope.destination : scope.source;
    forward(scope);
}

void DiffContext::summarise(const DiffScope& scope) {
    DiffScope all = scope;
    countRest(all, changes_[scope.begin]);
    const ChangeKind kind = all.restAllAdded     ? ChangeKind::Added
                            : all.restAllRemoved ? ChangeKind::Removed
                                                 : ChangeKind::Modified;
    Change summary{.kind = kindIn(scope, kind),
                   .level = all.restLevel,
                   // Within a part, what it sums up are parts too, which are not counted.
                   .weight = scope.inPart ? all.restLevel : all.restWeight,
                   .key = scope.key,
                   .isPart = scope.inPart,
                   .name = scope.name,
                   .index = scope.index,
                   .pathItem = scope.pathItem,
                   .operation = scope.operation};
    const bool inDestination = scope.destination != nullptr;
    place(summary, inDestination ? *scope.destination : *scope.source,
          inDestination ? DocumentSide::Destination : DocumentSide::Source);
    drop(scope);
    changes_.push_back(summary);
    DiffScope forwarded = scope;
    forwarded.restLevel = forwarded.restWeight = ChangeLevel::None;
    forwarded.restAllAdded = forwarded.restAllRemoved = true;
    forward(forwarded);
}

void DiffContext::drop(const DiffScope& scope) {
    changes_.resize(scope.begin);
}

/// The changes of a closed scope become the last ones of the scope around it, or reach the report.
void DiffContext::forward(const DiffScope& scope) {
    if (scopes_.empty()) {
        for (const Change& change : changes_)
            report(change);
        changes_.clear();
        return;
    }
    DiffScope& outer = scopes_.back();
    if (outer.begin != scope.begin)
        countRest(outer, changes_[scope.begin]);
    outer.restLevel = std::max(outer.restLevel, scope.restLevel);
    outer.restWeight = std::max(outer.restWeight, scope.restWeight);
    outer.restAllAdded = outer.restAllAdded && scope.restAllAdded;
    outer.restAllRemoved = outer.restAllRemoved && scope.restAllRemoved;
}

// ---- changes

void DiffContext::mark(const openapi::Node* source, const openapi::Node* destination) {
    if (source == nullptr && destination == nullptr)
        return;
    const ChangeKind kind = source == nullptr        ? ChangeKind::Added
                            : destination == nullptr ? ChangeKind::Removed
                                                     : ChangeKind::Modified;
    const DiffScope& scope = scopes_.back();
    const ChangeKind family = scope.isItem() ? ChangeKind::KeyAdded : ChangeKind::PropertyAdded;
    Change change{.kind = kind, .key = scope.key};
    change.level = configuration_.entry(scope.key).lookup(inFamily(kind, ChangeKind::Added, family));
    change.weight = change.level;
    if (destination != nullptr)
        place(change, *destination, DocumentSide::Destination);
    else
        place(change, *source, DocumentSide::Source);
    append(change);
}

void DiffContext::addProperty(ChangeKind kind, ConfigKey key, const openapi::Node& node,
                              std::optional<bool> condition) {
    const NodeDiffConfig& entry = configuration_.entry(key);
    const DocumentSide side =
        kind == ChangeKind::PropertyRemoved ? DocumentSide::Source : DocumentSide::Destination;
    Change change{.kind = kind, .key = key};
    if (scopes_.empty()) {
        change.level = change.weight = levelOfValue(entry.lookup(kind, condition));
        place(change, node, side);
        if (change.level != ChangeLevel::None)
            report(change);
        return;
    }
    const DiffScope& scope = scopes_.back();
    // Where nothing marked the scope, the value stands for an item of it: the first one is classified as
    // such.
    const bool isFirst = changes_.size() == scope.begin;
    const ChangeKind read = isFirst ? inFamily(kind, ChangeKind::PropertyAdded, ChangeKind::KeyAdded) : kind;
    change.level = change.weight = levelOfValue(entry.lookup(read, condition));
    const openapi::Node* place = side == DocumentSide::Source ? scope.source : scope.destination;
    this->place(change, place != nullptr ? *place : node, side);
    append(change);
}

void DiffContext::extensionAdded(const openapi::Node& node, std::string_view name) {
    addExtension(ChangeKind::ExtensionAdded, node, name);
}

void DiffContext::extensionRemoved(const openapi::Node& node, std::string_view name) {
    addExtension(ChangeKind::ExtensionRemoved, node, name);
}

void DiffContext::extensionModified(const openapi::Node& node, std::string_view name) {
    addExtension(ChangeKind::ExtensionModified, node, name);
}

void DiffContext::addExtension(ChangeKind kind, const openapi::Node& node, std::string_view name) {
    Change change{.kind = kind, .name = name};
    change.level = change.weight = levelOfValue(configuration_.extension(node.type(), name).lookup(kind));
    const bool inSource = node.root() == &source_.root();
    place(change, node, inSource ? DocumentSide::Source : DocumentSide::Destination);
    if (scopes_.empty())
        return report(change);
    change.key = scopes_.back().key;
    append(change);
}

void DiffContext::include(const Comparison& comparison, bool listed) {
    if (comparison.level == ChangeLevel::None && (!listed || comparison.changes.empty()))
        return;
    append({.level = comparison.level,
            .weight = comparison.weight,
            .key = scopes_.back().key,
            .node = scopes_.back().destination,
            .comparison = listed ? &comparison : nullptr});
}

void DiffContext::append(Change change) {
    DiffScope& scope = scopes_.back();
    change.pathItem = scope.pathItem;
    change.operation = scope.operation;
    if (changes_.size() == scope.begin) {
        change.isPart = scope.inPart;
    } else {
        change.isPart = scope.inPart || makesParts(changes_[scope.begin]);
        countRest(scope, change);
    }
    changes_.push_back(change);
}

void DiffContext::place(Change& change, const openapi::Node& node, DocumentSide side) const {
    const openapi::ReadResult& document = side == DocumentSide::Source ? source_ : destination_;
    change.node = &node;
    change.side = side;
    const jv::Location location = document.nearestLocationOf(node);
    change.file = location.file;
    change.pos = location.pos;
}

/// Comparisons may include others, as deep as the references of the documents lead. Whatever refers to an
/// object may have had it compared first: only the place that lists the changes is the field that holds it.
void DiffContext::report(const Change& change) {
    if (change.kind != ChangeKind::Included)
        return report_.add(change);
    struct Cursor {
        Change place; ///< the one that lists the comparison
        std::size_t next = 0;
    };
    std::vector<Cursor> open;
    if (change.comparison != nullptr)
        open.push_back({change});
    while (!open.empty()) {
        auto& [place, next] = open.back();
        const Comparison& comparison = *place.comparison;
        if (next == comparison.changes.size()) {
            open.pop_back();
            continue;
        }
        Change inner = comparison.changes[next++];
        const bool hasPlace = inner.kind == ChangeKind::Included || isOfExtension(inner.kind);
        if (hasPlace && inner.node == comparison.destination)
            inner.key = place.key;
        if (inner.pathItem == nullptr) {
            inner.pathItem = place.pathItem;
            if (inner.operation == nullptr)
                inner.operation = place.operation;
        }
        if (inner.kind != ChangeKind::Included)
            report_.add(inner);
        else if (inner.comparison != nullptr)
            open.push_back({inner});
    }
}

// ---- comparisons on their own

void DiffContext::openCollecting(const openapi::Node& source, const openapi::Node& destination) {
    open({.key = ConfigKey{}, .source = &source, .destination = &destination});
    scopes_.back().inPart = false;
    scopes_.back().pathItem = scopes_.back().operation = nullptr; // those of the place that lists the changes
}

Comparison DiffContext::takeCollected() {
    const DiffScope scope = scopes_.back();
    scopes_.pop_back();
    Comparison found{.changes = {},
                     .destination = scope.destination,
                     .level = scope.restLevel,
                     .weight = scope.restWeight};
    if (changes_.size() > scope.begin + 1) {
        const auto first = changes_.begin() + static_cast<std::ptrdiff_t>(scope.begin);
        found.changes.assign(first + 1, changes_.end());
    }
    drop(scope);
    return found;
}

} // namespace specloom::openapi_diff
