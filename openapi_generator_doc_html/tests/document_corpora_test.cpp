// What is told about the public documents: samples are held to their schemas, usages to a closure over the
// references as they are written.

#include "foundation/strings.h"
#include "jv/deser.h"
#include "jv_generator/json_schema.h"
#include "jv_schema/schema.h"
#include "openapi_generator_doc_html/document/json_content.h"
#include "openapi_generator_doc_html/document/samples.h"
#include "openapi_generator_doc_html/document/usages.h"
#include "test_support/corpora.h"
#include "test_support/read_tree.h"

#include <algorithm>     // std::min
#include <filesystem>    // std::filesystem::path
#include <map>           // std::map
#include <optional>      // std::optional
#include <set>           // std::set
#include <string>        // std::string
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_generator::doc_html {
namespace {

using jv::JV;
using openapi::Node;

/// The readable documents. The same in other words stand for themselves once.
template <typename Check>
void forEachDocument(const Check& check) {
    for (const std::filesystem::path& path : test_support::affordableCorpusDocuments()) {
        const std::string name = path.filename().string();
        if (name == "cloudflare-3.0-indented.json" || name == "stripe-3.0.yaml")
            continue;
        SCOPED_TRACE(name);
        const test_support::ReadTree tree = test_support::readTree(path);
        if (tree.result != nullptr)
            check(*tree.result);
    }
}

/// Judges values by the schemas of a document, compiled as one.
class Judge {
  public:
    void add(const Node* schema) {
        if (schema != nullptr)
            schemas_.push_back(schema);
    }
    [[nodiscard]] bool accepts(const Node& schema, const std::string& json) {
        if (!schema_) {
            bundle_.emplace(schemas_, jv_generator::JSONSchema::Root::Members);
            jv::schema::CompileOptions options;
            options.assertFormats = true;
            schema_ = jv::schema::Schema::compile(bundle_->bundle(), options);
        }
        jv::LoadOptions options;
        options.format = jv::DocumentFormat::Json;
        const std::string instance = "{\"" + bundle_->memberOf(schema) + "\": " + json + "}";
        return schema_->isValid(*jv::parseDocument(instance, options)->root());
    }

  private:
    std::vector<const Node*> schemas_;
    std::optional<jv_generator::JSONSchema> bundle_;
    std::optional<jv::schema::Schema> schema_;
};

[[nodiscard]] const Node* jsonSchemaIn(const openapi::NodeMap& content) {
    const openapi::MediaType* json = jsonMediaType(content).mediaType;
    return json == nullptr ? nullptr : json->schemaNode();
}

[[nodiscard]] const Node* bodySchemaOf(const openapi::OperationRef& ref) {
    const openapi::RequestBody* body = ref.operation->requestBody();
    return body == nullptr ? nullptr : jsonSchemaIn(body->content());
}

[[nodiscard]] const Node* responseSchemaOf(const openapi::OperationRef& ref, const std::string& status) {
    return jsonSchemaIn(ref.operation->responses().find(status)->content());
}

/// The body of a request in JavaScript as JSON; empty without one.
[[nodiscard]] std::string bodyIn(const std::string& code) {
    constexpr std::string_view before = "  body: JSON.stringify(";
    constexpr std::string_view after = ")\n});";
    const std::size_t begin = code.find(before);
    if (begin == std::string::npos)
        return {};
    std::string body = code.substr(begin + before.size());
    body.resize(body.size() - after.size());
    replaceAll(body, "[\"__proto__\"]", "\"__proto__\"");
    return body;
}

TEST(DocumentCorpora, samplesFitTheirSchemas) {
    SPECLOOM_NEEDS_CORPORA();
    std::size_t judged = 0;
    forEachDocument([&](const openapi::ReadResult& document) {
        if (document.root().servers().empty())
            return;
        const auto operations = openapi::operationsOf(document.root());
        Judge judge;
        for (const openapi::OperationRef& ref : operations) {
            judge.add(bodySchemaOf(ref));
            for (const auto& entry : ref.operation->responses())
                judge.add(responseSchemaOf(ref, std::string(entry.name())));
        }
        SampleOptions options;
        options.useRequestBodyExamples = false; // nor are those of responses: all samples are made up
        options.useResponseExamples = false;
        Samples samples(document.root(), options);
        for (const openapi::OperationRef& ref : operations) {
            SCOPED_TRACE(std::string(openapi::operationKey(ref.method)) + " " + std::string(ref.path));
            const std::string body = bodyIn(samples.request(ref).vanillaJs->code);
            if (!body.empty()) {
                ++judged;
                EXPECT_TRUE(judge.accepts(*bodySchemaOf(ref), body)) << body;
            }
            for (const ResponseSample& response : samples.responses(ref)) {
                ++judged;
                EXPECT_TRUE(judge.accepts(*responseSchemaOf(ref, response.status), response.sample.code))
                    << response.status << " " << response.sample.code;
            }
        }
    });
    EXPECT_GT(judged, 1000U);
}

/// What refers to what in a document, by its text alone.
class Closure {
  public:
    explicit Closure(const JV& root) : root_(root) {}

    /// The schemas that values of a document lead to.
    [[nodiscard]] std::set<std::string> schemasFrom(const std::vector<const JV*>& values) {
        std::set<std::string> reached;
        std::vector<std::string> waiting;
        const auto reach = [&](const std::set<std::string>& targets) {
            for (const std::string& target : targets) {
                if (component(target) != nullptr && reached.insert(target).second)
                    waiting.push_back(target);
            }
        };
        for (const JV* value : values)
            reach(referencesIn(*value));
        while (!waiting.empty()) {
            const std::string target = std::move(waiting.back());
            waiting.pop_back();
            const auto [known, isNew] = known_.try_emplace(target);
            if (isNew)
                known->second = referencesIn(*component(target));
            reach(known->second);
        }
        std::set<std::string> schemas;
        for (const std::string& target : reached) {
            if (target.starts_with("#/components/schemas/"))
                schemas.insert(target.substr(std::string_view("#/components/schemas/").size()));
        }
        return schemas;
    }

    /// Null when there is none: a mapping may lead nowhere.
    [[nodiscard]] const JV* component(const std::string& reference) const {
        const std::string_view frame = "#/components/";
        const JV* components = root_.get("components");
        if (!reference.starts_with(frame) || components == nullptr)
            return nullptr;
        const std::string path = reference.substr(frame.size());
        const std::size_t slash = std::min(path.find('/'), path.size() - 1);
        const JV* section = components->get(path.substr(0, slash));
        return section == nullptr ? nullptr : section->get(path.substr(slash + 1));
    }

    /// The object itself or what it refers to.
    [[nodiscard]] const JV& resolved(const JV& value) const {
        const JV* reference = value.get("$ref");
        return reference == nullptr ? value : resolved(*component(std::string(reference->text())));
    }

  private:
    /// Extensions ("x-" members) have none, while a property or a header may have such a name.
    [[nodiscard]] static std::set<std::string> referencesIn(const JV& value) {
        struct Open {
            const JV* value;
            bool isMapOfNames;
        };
        std::set<std::string> targets;
        std::vector<Open> open{{&value, false}};
        while (!open.empty()) {
            const Open next = open.back();
            open.pop_back();
            if (next.value->isArray()) {
                for (const JV* element : next.value->elements())
                    open.push_back({element, false});
            }
            if (!next.value->isObject())
                continue;
            for (const jv::Member member : next.value->members()) {
                if (!next.isMapOfNames && member.key.starts_with("x-"))
                    continue;
                open.push_back({member.value, member.key == "properties" || member.key == "headers"});
                if (member.key == "$ref" && member.value->isString())
                    targets.emplace(member.value->text());
                if (member.key == "discriminator" && member.value->isObject())
                    addMapping(member.value->get("mapping"), targets);
            }
        }
        return targets;
    }

    static void addMapping(const JV* mapping, std::set<std::string>& targets) {
        if (mapping == nullptr || !mapping->isObject())
            return;
        for (const jv::Member member : mapping->members()) {
            const std::string target(member.value->text());
            targets.insert(target.find('/') == std::string::npos ? "#/components/schemas/" + target : target);
        }
    }

    const JV& root_;
    std::unordered_map<std::string, std::set<std::string>> known_;
};

/// The operation and the parameters of its path that it does not write anew.
[[nodiscard]] std::vector<const JV*> sourcesOf(const openapi::OperationRef& ref, const Closure& closure) {
    std::vector<const JV*> sources{ref.operation->source()};
    const auto keyOf = [&](const JV& parameter) {
        const JV& object = closure.resolved(parameter);
        return std::string(object.get("in")->text()) + " " + std::string(object.get("name")->text());
    };
    std::set<std::string> own;
    if (const JV* parameters = ref.operation->source()->get("parameters")) {
        for (const JV* parameter : parameters->elements())
            own.insert(keyOf(*parameter));
    }
    if (const JV* parameters = ref.pathItem->source()->get("parameters")) {
        for (const JV* parameter : parameters->elements()) {
            if (!own.contains(keyOf(*parameter)))
                sources.push_back(parameter);
        }
    }
    return sources;
}

TEST(DocumentCorpora, usagesAreTheClosureOfReferences) {
    SPECLOOM_NEEDS_CORPORA();
    std::size_t pairs = 0;
    forEachDocument([&](const openapi::ReadResult& document) {
        const Usages usages(document.root());
        Closure closure(*document.source().root());
        std::map<std::string, std::vector<const openapi::Operation*>> users;
        for (const openapi::OperationRef& ref : openapi::operationsOf(document.root())) {
            const std::set<std::string> expected = closure.schemasFrom(sourcesOf(ref, closure));
            EXPECT_EQ(usages.schemasOf(ref), std::vector<std::string>(expected.begin(), expected.end()))
                << ref.path;
            pairs += expected.size();
            for (const std::string& schema : expected)
                users[schema].push_back(ref.operation);
        }
        for (const auto& entry : document.root().components().schemas()) {
            std::vector<const openapi::Operation*> found;
            for (const openapi::OperationRef& ref : usages.operationsOf(entry.name()))
                found.push_back(ref.operation);
            EXPECT_EQ(found, users[std::string(entry.name())]) << entry.name();
        }
    });
    EXPECT_GT(pairs, 1000U);
}

} // namespace
} // namespace specloom::openapi_generator::doc_html
