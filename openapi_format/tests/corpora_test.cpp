// Every real document of the corpora: nothing but key orders changes, and the orders are those of the
// recommended configuration. The kind of an object is found here by the text of its pointer, for the places
// that such patterns can tell.

#include "openapi_format/formatter.h"

#include "foundation/strings.h"
#include "regex/pattern.h"
#include "test_support/corpora.h"

#include <algorithm>   // std::count, std::find, std::sort
#include <cstddef>     // std::ptrdiff_t, std::size_t
#include <map>         // std::map
#include <string>      // std::string
#include <string_view> // std::string_view
#include <tuple>       // std::get, std::tuple
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_format {
namespace {

using Keys = std::vector<std::string_view>;

struct PointerPattern {
    regex::Pattern pattern;
    std::string kind;
};

constexpr const char* payload = "payload";

/// Where objects of known kinds stand: regular expressions of whole pointers, but that a segment "*" is any
/// one segment. Each of the functions with a kind in its name adds the pattern `at` and those of what may
/// stand below such an object, to a fixed depth.
class PatternList {
  public:
    PatternList() {
        add("", "openapi");
        add("/info", "info");
        add("/info/contact", "contact");
        add("/info/license", "license");
        add("/servers/*", "server");
        add("/servers/*/variables/*", "serverVariable");
        add("/tags/*", "tag");
        add("/externalDocs", "externalDocumentation");
        add("/paths", "paths");
        addPathItem("/paths/*");
        addPathItem("/webhooks/*");
        addPathItem("/components/pathItems/*");
        addPathItem("/paths/*/*/callbacks/*/*");
        add("/components", "components");
        addSchema("/components/schemas/*", 2);
        addParameter("/components/parameters/*", "parameter");
        addParameter("/components/headers/*", "header");
        addContent("/components/requestBodies/*", "requestBody");
        addResponse("/components/responses/*");
        addExample("/components/examples/*");
        add("/components/links/*", "link");
        add("/components/securitySchemes/*", "securityScheme");
        add("/components/securitySchemes/*/flows", "oauthFlows");
    }

    /// Null for a place that no pattern tells.
    [[nodiscard]] const PointerPattern* find(const std::string& pointer) const {
        Shape shape = shapeOf(pointer);
        for (const std::string& last : {std::get<2>(shape), std::string("*")}) {
            std::get<2>(shape) = last;
            for (const PointerPattern& pattern : patterns_.contains(shape) ? patterns_.at(shape) : none_) {
                if (pattern.pattern.search(pointer) == regex::Pattern::Outcome::Match)
                    return &pattern;
            }
        }
        return nullptr;
    }

  private:
    void add(const std::string& text, const std::string& kind) {
        std::string source = "^" + text + "$";
        replaceAll(source, "*", "[^/]*");
        patterns_[shapeOf(text)].push_back({regex::Pattern(source), kind});
    }

    void addPathItem(const std::string& at) {
        add(at, "pathItem");
        const std::string operation = at + "/(?:get|put|post|delete|options|head|patch|trace)";
        add(operation, "operation");
        add(operation + "/externalDocs", "externalDocumentation");
        addParameter(at + "/parameters/*", "parameter");
        addParameter(operation + "/parameters/*", "parameter");
        addContent(operation + "/requestBody", "requestBody");
        add(operation + "/responses", "responses");
        addResponse(operation + "/responses/*");
    }

    void addResponse(const std::string& at) {
        addContent(at, "response");
        addParameter(at + "/headers/*", "header");
        add(at + "/links/*", "link");
    }

    void addContent(const std::string& at, const std::string& kind) {
        add(at, kind);
        add(at + "/content/*", "mediaType");
        add(at + "/content/*/encoding/*", "encoding");
        add(at + "/content/*/example", payload);
        addExample(at + "/content/*/examples/*");
        addSchema(at + "/content/*/schema", 1);
    }

    void addParameter(const std::string& at, const std::string& kind) {
        add(at, kind);
        addSchema(at + "/schema", 0);
        add(at + "/example", payload);
        addExample(at + "/examples/*");
    }

    void addExample(const std::string& at) {
        add(at, "example");
        add(at + "/value", payload);
    }

    void addSchema(const std::string& at, int levels) {
        add(at, "schema");
        add(at + "/discriminator", "discriminator");
        add(at + "/xml", "xml");
        for (const char* member : {"/example", "/examples", "/default", "/enum", "/const"})
            add(at + member, payload);
        if (levels == 0)
            return;
        for (const char* below :
             {"/properties/*", "/items", "/(?:allOf|oneOf|anyOf)/*", "/additionalProperties"})
            addSchema(at + below, levels - 1);
    }

    /// First segment, number of segments and last segment: matching texts is slow.
    using Shape = std::tuple<std::string, std::ptrdiff_t, std::string>;

    [[nodiscard]] static Shape shapeOf(const std::string& text) {
        const std::string last = text.substr(text.rfind('/') + 1);
        return {text.substr(0, text.find('/', 1)), std::count(text.begin(), text.end(), '/'),
                last.starts_with('(') ? "*" : last};
    }

    const std::vector<PointerPattern> none_;
    std::map<Shape, std::vector<PointerPattern>> patterns_;
};

struct Seen {
    std::size_t ordered = 0, payloads = 0;
};

/// The order of `before` with the keys of `list` in front.
Keys inFixedOrder(const Keys& before, const std::vector<std::string>& list) {
    Keys expected;
    for (const std::string& name : list) {
        if (std::find(before.begin(), before.end(), name) != before.end())
            expected.push_back(name);
    }
    for (const std::string_view key : before) {
        if (std::find(list.begin(), list.end(), key) == list.end())
            expected.push_back(key);
    }
    return expected;
}

Keys inOrder(Keys before, const PropertyOrder& order) {
    if (order.mode() == PropertyOrder::Mode::Fixed)
        return inFixedOrder(before, order.keys());
    if (order.mode() == PropertyOrder::Mode::Sorted)
        std::sort(before.begin(), before.end());
    return before;
}

Keys keysOf(const jv::JVDocument& document, const jv::JV& object) {
    Keys keys;
    for (const jv::Member& member : document.orderedMembers(&object))
        keys.push_back(member.key);
    return keys;
}

/// Whether patterns can tell the kind: not where a reference has siblings that make its kind a matter of
/// taste.
bool isPlain(const jv::JV& object) {
    return !object.has("$ref") || object.size() == 1;
}

class Comparison {
  public:
    Comparison(const jv::JVDocument& before, const jv::JVDocument& after, Seen& seen)
        : before_(before), after_(after), seen_(seen) {}

    void run() {
        open_.push_back({before_.root(), false});
        while (!open_.empty()) {
            const auto [value, inPayload] = open_.back();
            open_.pop_back();
            const std::string pointer = value->pointer();
            // Extensions are payload, but "x-" also starts names of headers and properties: those are passed
            // over.
            if (pointer.find("/x-") != std::string::npos)
                continue;
            const PointerPattern* pattern = inPayload ? nullptr : patterns().find(pointer);
            const bool isPayload = inPayload || (pattern != nullptr && pattern->kind == payload);
            if (value->isObject())
                compare(*value, pointer, isPayload, pattern);
            openChildren(*value, isPayload);
        }
    }

  private:
    struct Open {
        const jv::JV* value;
        bool inPayload;
    };

    static const PatternList& patterns() {
        static const PatternList list;
        return list;
    }

    void compare(const jv::JV& object, const std::string& pointer, bool isPayload,
                 const PointerPattern* pattern) {
        const jv::JV* other = after_.lookup(pointer);
        ASSERT_NE(other, nullptr) << pointer;
        const Keys before = keysOf(before_, object);
        const Keys after = keysOf(after_, *other);
        if (isPayload) {
            EXPECT_EQ(after, before) << "payload at " << pointer;
            seen_.payloads += before.size() > 1;
        } else if (pattern != nullptr && isPlain(object)) {
            EXPECT_EQ(after, inOrder(before, recommended_.orderOf(pattern->kind)))
                << pattern->kind << " at " << pointer;
            seen_.ordered += before.size() > 1;
        }
    }

    void openChildren(const jv::JV& value, bool isPayload) {
        if (value.isArray()) {
            for (const jv::JV* element : value.elements())
                open_.push_back({element, isPayload});
        } else if (value.isObject()) {
            for (const jv::Member member : value.members())
                open_.push_back({member.value, isPayload});
        }
    }

    const jv::JVDocument& before_;
    const jv::JVDocument& after_;
    Seen& seen_;
    const Configuration recommended_ = Configuration::recommended();
    std::vector<Open> open_;
};

TEST(Corpora, everyDocumentTakesTheRecommendedOrder) {
    SPECLOOM_NEEDS_CORPORA();
    const Formatter formatter;
    Seen seen;
    for (const auto& file : test_support::filesBelow(test_support::corporaFolder() / "openapi", "")) {
        const std::string path = file.string();
        SCOPED_TRACE(path);
        const jv::LoadedDocument source = jv::loadDocument(path);
        const jv::LoadedDocument result = jv::loadDocument(path);
        formatter.run(*result.document);
        EXPECT_TRUE(result.document->root()->equals(*source.document->root()));
        Comparison(*source.document, *result.document, seen).run();
    }
    // Patterns that match nothing would make all of the above hold.
    EXPECT_GT(seen.ordered, 50000u);
    EXPECT_GT(seen.payloads, 5000u);
}

} // namespace
} // namespace specloom::openapi_format
