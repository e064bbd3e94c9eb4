#include "openapi_i18n/texts.h"

#include "foundation/strings.h"
#include "foundation/text_tables.h"
#include "openapi/node_texts.h"
#include "openapi/node_visitor.h"
#include "openapi/oauth_flow.h"
#include "openapi/openapi.h"
#include "openapi/tag.h"

#include <algorithm>     // std::reverse
#include <cstddef>       // std::size_t, std::ptrdiff_t
#include <optional>      // std::optional
#include <unordered_set> // std::unordered_set

namespace specloom::openapi_i18n {

namespace {

using jv::JV;
using openapi::Node;

/// Finds the values that are such texts, in any order.
class TextFinder final : public openapi::NodeVisitHandler {
  public:
    using NodeVisitHandler::visit;

    void visit(const Node& node) override {
        openapi::forEachTexts(node, [this](const Node& owner, const openapi::NodeTexts& texts) {
            addMember(owner, "title", texts.title);
            addMember(owner, "summary", texts.summary);
            addMember(owner, "description", texts.description);
        });
    }

    /// What stands beside a `$ref` holds for schemas from OpenAPI 3.1 on (JSON Schema, section 8.2.3.1),
    /// though the tree does not have it.
    void visit(const openapi::Schema& schema) override {
        if (!openapi::documentOf(schema).isVersion31())
            return;
        for (const openapi::Reference* reference = schema.firstReference(); reference != nullptr;
             reference = reference->nextReference()) {
            found.insert(memberOf(*reference, "title"));
            found.insert(memberOf(*reference, "description"));
        }
    }

    /// Pages name groups of operations by them.
    void visit(const openapi::Tag& tag) override { addMember(tag, "name", tag.name()); }

    void visit(const openapi::OAuthFlow& flow) override {
        const JV* scopes = memberOf(flow, "scopes");
        if (scopes == nullptr || !scopes->isObject())
            return;
        for (const jv::Member scope : scopes->members())
            found.insert(scope.value);
    }

    std::unordered_set<const JV*> found;

  private:
    [[nodiscard]] static const JV* memberOf(const Node& node, std::string_view key) {
        const JV* source = node.source();
        return source != nullptr && source->isObject() ? source->get(key) : nullptr;
    }

    void addMember(const Node& node, std::string_view key, std::optional<std::string_view> text) {
        if (text)
            found.insert(memberOf(node, key));
    }
};

} // namespace

std::vector<std::string_view> translatableTexts(const openapi::ReadResult& document) {
    TextFinder finder;
    openapi::NodeVisitor(finder).visit(document.root());
    std::vector<std::string_view> texts;
    TextViewSet known;
    std::vector<const JV*> waiting{document.source().root()};
    while (!waiting.empty()) {
        const JV& value = *waiting.back();
        waiting.pop_back();
        if (value.isString() && finder.found.contains(&value) && !trim(value.text()).empty() &&
            known.insert(value.text()).second)
            texts.push_back(value.text());
        const std::size_t first = waiting.size();
        if (value.isArray())
            waiting.insert(waiting.end(), value.elements().begin(), value.elements().end());
        else if (value.isObject())
            document.source().forEachOrdered(
                &value, [&](const jv::Member& member) { waiting.push_back(member.value); });
        std::reverse(waiting.begin() + static_cast<std::ptrdiff_t>(first), waiting.end());
    }
    return texts;
}

} // namespace specloom::openapi_i18n
