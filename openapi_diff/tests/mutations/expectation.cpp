#include "mutations/expectation.h"

#include <algorithm>  // std::max, std::find
#include <functional> // std::function
#include <tuple>      // std::tie

namespace specloom::openapi_diff::mutations {
namespace {

constexpr const char* levelNames[] = {"none", "non-functional", "non-breaking", "breaking"};
constexpr int nested = 4;

/// A value has nothing below it.
int ofValue(int level) {
    return level == nested ? 0 : level;
}

const char* actionOf(bool inSource, bool inDestination) {
    return !inSource ? "add" : !inDestination ? "remove" : "modify";
}

std::string past(const std::string& action) {
    return action == "add" ? "added" : action == "remove" ? "removed" : "modified";
}

std::set<Json> typesOf(const Json& schema) {
    std::set<Json> types;
    if (const auto type = schema.find("type"); type != schema.end()) {
        if (type->is_array())
            types.insert(type->begin(), type->end());
        else
            types.insert(*type);
    }
    if (schema.value("nullable", false))
        types.insert("null");
    return types;
}

/// Whether the schema of a `not` has nothing in it: so nothing below it could tell that it came or went.
bool refusesAll(const Json* schema) {
    if (schema == nullptr || isReference(*schema))
        return false;
    const Json& object = asObject(*schema);
    for (const auto& [name, value] : object.items()) {
        static const std::set<std::string> unseen{"$comment",        "$defs",    "definitions",
                                                  "additionalItems", "nullable", "dependentRequired",
                                                  "dependentSchemas"};
        if (name.starts_with("x-") || unseen.contains(name))
            return false;
        for (const Field& field : fieldsOf("schema"))
            if (field.member == name)
                return false;
    }
    return true;
}

/// Positions that go together, of which one may be -1.
using Positions = std::vector<std::pair<std::int64_t, std::int64_t>>;

/// Pairs the elements of two lists in rounds: in each, elements for which the round has equal keys, first
/// come, first served. A key that is null takes no part.
Positions pairUp(const Json& before, const Json& after,
                 const std::vector<std::function<Json(bool inSource, const Json&)>>& rounds) {
    std::vector<std::int64_t> partner(after.size(), -1);
    std::vector<bool> isTaken(before.size(), false);
    for (const auto& keyOf : rounds)
        for (std::size_t i = 0; i < after.size(); ++i) {
            const Json key = partner[i] < 0 ? keyOf(false, after[i]) : Json();
            if (key.is_null())
                continue;
            for (std::size_t j = 0; j < before.size(); ++j)
                if (!isTaken[j] && keyOf(true, before[j]) == key) {
                    partner[i] = static_cast<std::int64_t>(j);
                    isTaken[j] = true;
                    break;
                }
        }
    Positions result;
    for (std::size_t i = 0; i < after.size(); ++i)
        result.emplace_back(partner[i], i);
    for (std::size_t j = 0; j < before.size(); ++j)
        if (!isTaken[j])
            result.emplace_back(j, -1);
    return result;
}

} // namespace

Expectation::Expectation(const Json& before, const Json& after, const Classifications& table)
    : before_(before), after_(after), table_(table) {}

std::multiset<std::string> Expectation::lines() {
    // What is known of the targets of references grows until nothing new is found.
    Changes found;
    for (bool isNew = true; isNew;) {
        isNew = false;
        const std::size_t known = targets_.size();
        found = objects("openapi", "openapi.openapi", {{&before_, ""}, {&after_, ""}});
        for (auto& [id, targets] : targets_) {
            const bool wasEmpty = targets.changes.empty();
            targets.changes = between(targets.section, targets.key, targets.pair);
            const auto [level, weight] = worst(targets.changes);
            isNew = isNew || level > targets.level || weight > targets.weight ||
                    wasEmpty != targets.changes.empty();
            targets.level = level;
            targets.weight = weight;
        }
        isNew = isNew || targets_.size() != known;
    }
    // No scope is open around the root: its own values of the level none are no changes.
    std::erase_if(found, [](const Change& change) {
        return change.level == 0 && change.text.starts_with("property") && change.place.size() == 1;
    });
    std::multiset<std::string> lines;
    list(found, lines);
    return lines;
}

/// The highest level of changes, and that of those that count where additions and removals are wholes.
std::pair<int, int> Expectation::worst(const Changes& changes) {
    std::pair<int, int> result{0, 0};
    for (const Change& change : changes) {
        result.first = std::max(result.first, change.level);
        if (!change.isPart)
            result.second = std::max(result.second, change.weight);
    }
    return result;
}

void Expectation::list(const Changes& changes, std::multiset<std::string>& lines) {
    for (const Change& change : changes) {
        const std::string more = change.isPart ? ", part"
                                 : change.weight != change.level
                                     ? std::string(", weighs ") + levelNames[change.weight]
                                     : "";
        if (!change.text.empty())
            lines.insert(change.text + " " + levelNames[change.level] + " " + change.place + more);
        else if (change.targets && listed_.insert(*change.targets).second)
            list(targets_.at(*change.targets).changes, lines);
    }
}

// ---- scopes

std::string Expectation::sideOf(const Spot& spot, bool inSource) {
    return (inSource ? "-" : "+") + spot.pointer;
}

/// What stands in a place is reported by a change of the place and the changes below it.
void Expectation::place(Changes& found, const Scope& scope, const std::string& section, const Pair& pair) {
    close(found, scope, pair, between(section, scope.key, pair));
}

void Expectation::close(Changes& found, const Scope& scope, const Pair& pair, Changes below) {
    if (below.empty())
        return;
    const bool isItem = scope.name || scope.index >= 0;
    const std::string action = actionOf(bool(pair.before), bool(pair.after));
    int level = table_.level(scope.key, action + (isItem ? "_item" : ""));
    int weight = level;
    if (level == nested)
        std::tie(level, weight) = worst(below);
    else if (action != "modify")
        for (Change& change : below)
            change.isPart = true;
    if (level == 0)
        return;
    plain(found, scope, action.c_str(), pair.after ? pair.after : pair.before);
    found.back().level = level;
    found.back().weight = weight;
    found.insert(found.end(), below.begin(), below.end());
}

/// The change of a field or an item itself.
void Expectation::plain(Changes& found, const Scope& scope, const char* action, const Spot& at) {
    const bool isItem = scope.name || scope.index >= 0;
    const std::string subject = scope.name ? "key" : scope.index >= 0 ? "element" : "property";
    std::string text = subject + "_" + past(action) + " " + scope.key;
    if (scope.name)
        text += " (" + *scope.name + ")";
    if (scope.index >= 0)
        text += " [" + std::to_string(scope.index) + "]";
    const int level = isItem ? ofValue(table_.level(scope.key, std::string(action) + "_item")) : 0;
    found.push_back({text, level, sideOf(at, std::string(action) == "remove")});
}

// ---- objects

Expectation::Changes Expectation::between(const std::string& section, const std::string& key,
                                          const Pair& pair) {
    const auto isReferenced = [&](const Spot& spot) {
        return spot && allowsReferences(section) && isReference(*spot.value);
    };
    return isReferenced(pair.before) || isReferenced(pair.after) ? references(section, key, pair)
                                                                 : objects(section, key, pair);
}

Expectation::Changes Expectation::objects(const std::string& section, const std::string& key,
                                          const Pair& pair) {
    Changes found;
    for (const Field& each : fieldsOf(section))
        field(found, section, each, pair);
    extensions(found, key, pair);
    return found;
}

void Expectation::extensions(Changes& found, const std::string& key, const Pair& pair) {
    const Json none = Json::object();
    const Json& before = pair.before ? asObject(*pair.before.value) : none;
    const Json& after = pair.after ? asObject(*pair.after.value) : none;
    const auto tell = [&](const char* kind, const std::string& name, const char* action) {
        const Spot& at = pair.after ? pair.after : pair.before;
        found.push_back({std::string("extension_") + kind + " " + key + " (" + name + ")",
                         ofValue(table_.level("defaults.extensions", action)), sideOf(at, !pair.after)});
    };
    for (const auto& [name, value] : after.items())
        if (name.starts_with("x-")) {
            if (!before.contains(name))
                tell("added", name, "add");
            else if (before.at(name) != value)
                tell("modified", name, "modify");
        }
    for (const auto& [name, value] : before.items())
        if (name.starts_with("x-") && !after.contains(name))
            tell("removed", name, "remove");
}

Expectation::Spot Expectation::child(const Spot& spot, const std::string& section, const Field& field) {
    if (!spot)
        return {};
    if (field.member.empty() || field.shape == Shape::Operations)
        return spot;
    const Json& object = asObject(*spot.value);
    const Json* member = memberOf(section, object, field);
    const bool isThere = spot.value->is_object() && spot.pointer != "?" && object.contains(field.member);
    return {member, isThere ? spot.pointer + "/" + escaped(field.member) : "?"};
}

void Expectation::field(Changes& found, const std::string& section, const Field& field, const Pair& pair) {
    const Pair members{child(pair.before, section, field), child(pair.after, section, field)};
    const Json* before = members.before.value;
    const Json* after = members.after.value;
    switch (field.shape) {
    case Shape::Text:
    case Shape::Value:
        return value(found, field.key, before, after, pair);
    case Shape::Flag:
        return flag(found, field.key, before, after, pair);
    case Shape::Types: {
        const auto types = [](const Spot& spot) -> std::optional<Json> {
            const std::set<Json> known = spot ? typesOf(asObject(*spot.value)) : std::set<Json>();
            return known.empty() ? std::nullopt : std::optional<Json>(known);
        };
        const auto a = types(pair.before);
        const auto b = types(pair.after);
        return value(found, field.key, a ? &*a : nullptr, b ? &*b : nullptr, pair);
    }
    case Shape::Object:
        if (field.key == "schema.not" && (refusesAll(before) || refusesAll(after)) && !(before && after))
            return value(found, field.key, before, after, pair);
        [[fallthrough]];
    case Shape::Always:
        if (before != nullptr || after != nullptr)
            place(found, {field.key}, field.child, members);
        return;
    case Shape::Map:
    case Shape::Operations:
        return maps(found, field, members);
    case Shape::Variables:
        return maps(found, field, pair);
    case Shape::TextMap:
        return textMaps(found, field, members, pair);
    case Shape::Set:
    case Shape::NameSet:
        return sets(found, field, before, after, pair);
    case Shape::Requirements:
        return requirements(found, field, pair, members);
    case Shape::Named:
    case Shape::Parameters:
    case Shape::Schemas:
        return lists(found, field, members);
    }
}

// ---- values

void Expectation::value(Changes& found, const std::string& key, const Json* before, const Json* after,
                        const Pair& pair) {
    if (before == nullptr && after == nullptr)
        return;
    if (before != nullptr && after != nullptr && *before == *after)
        return;
    const char* action = actionOf(before != nullptr, after != nullptr);
    const Json& now = after != nullptr ? *after : *before;
    const auto condition = now.is_boolean() ? std::optional(now.get<bool>()) : std::nullopt;
    const bool isRemoved = after == nullptr;
    found.push_back({"property_" + past(action) + " " + key, ofValue(table_.level(key, action, condition)),
                     sideOf(isRemoved ? pair.before : pair.after, isRemoved)});
}

void Expectation::flag(Changes& found, const std::string& key, const Json* before, const Json* after,
                       const Pair& pair) {
    static const Json no = false;
    const auto isSet = [](const Json* flag) { return flag != nullptr && flag->get<bool>(); };
    if (pair.before && pair.after)
        return value(found, key, isSet(before) ? before : &no, isSet(after) ? after : &no, pair);
    if (isSet(before) || isSet(after)) // without an object there is no flag that could be false
        value(found, key, isSet(before) ? before : nullptr, isSet(after) ? after : nullptr, pair);
}

void Expectation::sets(Changes& found, const Field& field, const Json* before, const Json* after,
                       const Pair& pair) {
    static const Json none = Json::array();
    const Json& old = before != nullptr ? *before : none;
    const Json& now = after != nullptr ? *after : none;
    const auto tellMissing = [&](const Json& from, const Json& in, const char* action, const Spot& at) {
        for (auto element = from.begin(); element != from.end(); ++element) {
            const bool isFirst = std::find(from.begin(), element, *element) == element;
            if (!isFirst || std::find(in.begin(), in.end(), *element) != in.end())
                continue;
            if (field.shape == Shape::Set)
                plain(found, {field.key, {}, element - from.begin()}, action, at);
            else if (element->is_string())
                plain(found, {field.key, element->get<std::string>()}, action, at);
        }
    };
    tellMissing(now, old, "add", pair.after);
    tellMissing(old, now, "remove", pair.before);
}

void Expectation::textMaps(Changes& found, const Field& field, const Pair& entries, const Pair& pair) {
    static const Json none = Json::object();
    const Json& before = entries.before ? *entries.before.value : none;
    const Json& after = entries.after ? *entries.after.value : none;
    for (const auto& [name, value] : after.items()) {
        if (!before.contains(name))
            plain(found, {field.key, name}, "add", pair.after);
        else if (before.at(name) != value)
            plain(found, {field.key, name}, "modify", pair.after);
    }
    for (const auto& [name, value] : before.items())
        if (!after.contains(name))
            plain(found, {field.key, name}, "remove", pair.before);
}

// ---- maps and lists of objects

void Expectation::maps(Changes& found, const Field& field, const Pair& pair) {
    static const Json empty = Json::object();
    const auto entriesOf = [&](const Spot& spot) {
        std::map<std::string, Spot> entries;
        if (!spot)
            return entries;
        if (field.shape == Shape::Variables) {
            const Json variables = spot.value->value("variables", Json::object());
            for (const std::string& name : variableNames(*spot.value)) {
                const bool isThere = variables.contains(name);
                entries[name] = {isThere ? &spot.value->at("variables").at(name) : &empty,
                                 isThere ? spot.pointer + "/variables/" + escaped(name) : "?"};
            }
            return entries;
        }
        for (const auto& [name, value] : spot.value->items()) {
            const std::set<std::string> methods{"get",     "put",  "post",  "delete",
                                                "options", "head", "patch", "trace"};
            const bool counts = field.shape == Shape::Operations
                                    ? methods.contains(name)
                                    : !field.member.empty() || !name.starts_with("x-");
            if (counts)
                entries[name] = {&value, spot.pointer + "/" + escaped(name)};
        }
        return entries;
    };
    const auto before = entriesOf(pair.before);
    const auto after = entriesOf(pair.after);
    std::set<std::string> names;
    for (const auto* entries : {&before, &after})
        for (const auto& [name, spot] : *entries)
            names.insert(name);
    for (const std::string& name : names) {
        const auto at = [&](const auto& entries) {
            const auto entry = entries.find(name);
            return entry == entries.end() ? Spot() : entry->second;
        };
        place(found, {field.key, name}, field.child, {at(before), at(after)});
    }
}

void Expectation::lists(Changes& found, const Field& field, const Pair& pair) {
    static const Json none = Json::array();
    const std::string section = field.child.substr(0, field.child.find('/'));
    const std::string member = field.child.substr(field.child.find('/') + 1);
    using KeyOf = std::function<Json(bool, const Json&)>;
    std::vector<KeyOf> rounds;
    if (field.shape == Shape::Named)
        rounds = {[&](bool, const Json& element) { return element.at(member); }};
    else if (field.shape == Shape::Parameters)
        rounds = {[&](bool inSource, const Json& element) {
            const Json& parameter = *resolved(section, {&element, "?"}, inSource).value;
            return Json::array({parameter.at("in"), parameter.at("name")});
        }};
    else
        rounds = {
            [](bool, const Json& element) {
                return isReference(element) ? Json(targetName(element)) : Json();
            },
            [](bool, const Json& element) {
                return isReference(element) ? Json() : asObject(element).value("title", Json());
            },
            [](bool, const Json& element) { return isReference(element) ? Json() : Json::array({element}); },
            [](bool, const Json&) { return Json(true); }};
    const auto at = [](const Spot& list, std::int64_t index) {
        return index < 0 ? Spot()
                         : Spot{&list.value->at(static_cast<std::size_t>(index)),
                                list.pointer + "/" + std::to_string(index)};
    };
    for (const auto& [from, to] :
         pairUp(pair.before ? *pair.before.value : none, pair.after ? *pair.after.value : none, rounds))
        place(found, {field.key, {}, to < 0 ? from : to}, section,
              {at(pair.before, from), at(pair.after, to)});
}

void Expectation::requirements(Changes& found, const Field& field, const Pair& pair, Pair lists) {
    // To inherit the requirements of the document is to have them, where the other side is free of all.
    const auto inherit = [&](Spot& own, const Spot& owner, const Spot& other, const Json& root) {
        if (field.key == "operation.security" && owner && !own && other && other.value->empty() &&
            root.contains("security"))
            own = {&root.at("security"), "/security"};
    };
    const Pair written = lists;
    inherit(lists.before, pair.before, written.after, before_);
    inherit(lists.after, pair.after, written.before, after_);
    static const Json none = Json::array();
    const auto meaning = [](bool, const Json& requirement) {
        Json sorted = requirement;
        for (Json& scopes : sorted)
            std::sort(scopes.begin(), scopes.end());
        return Json::array({sorted});
    };
    for (const auto& [from, to] : pairUp(lists.before ? *lists.before.value : none,
                                         lists.after ? *lists.after.value : none, {meaning})) {
        if (from >= 0 && to >= 0)
            continue;
        const bool isAdded = from < 0;
        const std::int64_t index = isAdded ? to : from;
        const Spot at{&none, (isAdded ? lists.after : lists.before).pointer + "/" + std::to_string(index)};
        const char* action = isAdded ? "add" : "remove";
        Changes below;
        plain(below, {"securityRequirement", {}, index}, action, at);
        close(found, {field.key, {}, index}, isAdded ? Pair{{}, at} : Pair{at, {}}, below);
    }
}

// ---- references

Expectation::Spot Expectation::target(const std::string& section, const Json& reference,
                                      bool inSource) const {
    const std::string components = componentsOf(section);
    const std::string name = targetName(reference);
    return {&(inSource ? before_ : after_).at("components").at(components).at(name),
            "/components/" + components + "/" + escaped(name)};
}

Expectation::Spot Expectation::resolved(const std::string& section, const Spot& spot, bool inSource) const {
    Spot at = spot;
    while (at && isReference(*at.value))
        at = target(section, *at.value, inSource);
    return at;
}

Expectation::Changes Expectation::references(const std::string& section, const std::string& key,
                                             const Pair& pair) {
    Changes found;
    const auto reference = [](const Spot& spot) { return spot && isReference(*spot.value) ? spot : Spot(); };
    const Pair refs{reference(pair.before), reference(pair.after)};
    const auto name = [](const Spot& spot) { return spot ? Json(targetName(*spot.value)) : Json(); };
    const Json before = name(refs.before);
    const Json after = name(refs.after);
    value(found, "reference.$ref", before.is_null() ? nullptr : &before, after.is_null() ? nullptr : &after,
          pair);
    // In OpenAPI 3.0 nothing may stand beside the reference to a schema.
    const auto textOf = [&](const Spot& spot, const char* member, const Json& document) -> const Json* {
        if (!spot || (section == "schema" && isOpenAPI30(document)))
            return nullptr;
        const auto text = spot.value->find(member);
        return text == spot.value->end() || !text->is_string() ? nullptr : &*text;
    };
    for (const char* member : {"summary", "description"})
        value(found, std::string("reference.") + member, textOf(refs.before, member, before_),
              textOf(refs.after, member, after_), pair);
    if (section != "schema")
        extensions(found, key, refs);
    if (!pair.before || !pair.after)
        return found;
    if (!before.is_null() && before == after)
        include(found, section, key,
                {target(section, *pair.before.value, true), target(section, *pair.after.value, false)},
                false);
    else
        include(found, section, key,
                {resolved(section, pair.before, true), resolved(section, pair.after, false)}, true);
    return found;
}

/// What differs between the targets counts in the place of use. It is listed with the components where these
/// go by one name, and elsewhere at the first place that meets the two.
void Expectation::include(Changes& found, const std::string& section, const std::string& key,
                          const Pair& pair, bool isListed) {
    const PairId id{pair.before.pointer, pair.after.pointer};
    isListed = isListed && id.first != id.second;
    const auto entry = targets_.try_emplace(id, Targets{section, key, pair}).first;
    const bool isEmpty = entry->second.changes.empty();
    if (entry->second.level > 0 || (isListed && !isEmpty))
        found.push_back({.text = "",
                         .level = entry->second.level,
                         .weight = entry->second.weight,
                         .targets = isListed ? std::optional(id) : std::nullopt});
}

} // namespace specloom::openapi_diff::mutations
