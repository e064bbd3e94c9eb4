#include "openapi_generator_doc_html/document/samples.h"

#include "foundation/escapes.h"
#include "foundation/strings.h"
#include "jv_generator/generator.h"
#include "openapi/openapi.h"
#include "openapi_generator_doc_html/document/document_order.h"
#include "openapi_generator_doc_html/document/json_content.h"
#include "openapi_generator_doc_html/document/json_text.h"
#include "openapi_generator_doc_html/document/request_url.h"

#include <cstdint>       // UINT64_MAX
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <unordered_set> // std::unordered_set
#include <utility>       // std::move

namespace specloom::openapi_generator::doc_html {

namespace {

using jv::JV;
using openapi::Examples;
using openapi::Node;
using openapi::Parameter;
using openapi::Schema;

/// A value of the document, or one that was made up.
struct SampleValue {
    const JV* value = nullptr; ///< null when there is none
    bool generated = false;
};

struct HeaderLine {
    std::string name;
    std::string value;
};

/// What a request is made of, whatever the language.
struct Request {
    std::string method; ///< in upper case
    std::string url;
    std::vector<HeaderLine> headers;
    const JV* body = nullptr; ///< null without one
    bool generated = false;
};

[[nodiscard]] const JV* exampleOf(const Examples& examples) {
    if (examples.mode() == Examples::Mode::Single)
        return examples.single();
    for (const openapi::NodeMap::Entry* entry : inDocumentOrder(examples.map())) {
        const auto* example = openapi::resolveTo<openapi::Example>(entry->value.get());
        if (example != nullptr && example->value() != nullptr)
            return example->value();
    }
    return nullptr;
}

/// `example` of OpenAPI 3.0, or the first of `examples`.
[[nodiscard]] const JV* exampleOfSchema(const Node* node) {
    const auto* schema = openapi::resolveTo<Schema>(node);
    if (schema == nullptr)
        return nullptr;
    const JV* source = schema->source();
    const JV* example = source != nullptr && source->isObject() ? source->get("example") : nullptr;
    const openapi::SchemaExamples several = schema->examples();
    if (example == nullptr && several.entries != nullptr && !several.entries->empty())
        example = several.entries->front().value.get();
    return example;
}

/// What describes a value: a parameter or a media type.
struct Described {
    const Examples* examples;
    const Node* schema; ///< null without one
};

[[nodiscard]] Described describedBy(const openapi::MediaType& mediaType) {
    return {&mediaType.examples(), mediaType.schemaNode()};
}

[[nodiscard]] Described describedBy(const Parameter& parameter) {
    const openapi::MediaType* mediaType = parameter.value().mediaType();
    if (mediaType == nullptr)
        return {&parameter.examples(), parameter.value().schemaNode()};
    Described described = describedBy(*mediaType);
    if (exampleOf(*described.examples) == nullptr)
        described.examples = &parameter.examples();
    return described;
}

[[nodiscard]] const JV* exampleOf(const Described& described) {
    const JV* example = exampleOf(*described.examples);
    return example != nullptr ? example : exampleOfSchema(described.schema);
}

/// The same node for all references that say nothing of their own, so that its sample is made once.
[[nodiscard]] const Node& sampledNode(const Node& schema) {
    const bool isBare = schema.type() == openapi::NodeType::Reference && schema.source() != nullptr &&
                        schema.source()->size() == 1 && schema.resolve() != nullptr;
    return isBare ? *schema.resolve() : schema;
}

// ---- languages

/// Within single quotes of a shell (POSIX.1-2017, section 2.2.2 of its Shell & Utilities).
[[nodiscard]] std::string shellQuoted(std::string_view text) {
    std::string quoted(text);
    replaceAll(quoted, "'", "'\\''");
    return "'" + quoted + "'";
}

[[nodiscard]] std::string curlText(const Request& request) {
    constexpr std::string_view nextLine = " \\\n  ";
    std::string code = "curl -L";
    if (request.method != "GET")
        code.append(nextLine).append("-X ").append(request.method);
    for (const HeaderLine& header : request.headers)
        code.append(nextLine).append("-H ").append(shellQuoted(header.name + ": " + header.value));
    code.append(nextLine).append(shellQuoted(request.url));
    if (request.body != nullptr)
        code.append(nextLine).append("-d ").append(shellQuoted(jsonText(*request.body, JsonForm::Indented)));
    return code;
}

[[nodiscard]] std::string vanillaJsText(const Request& request) {
    std::string code = "const json = await fetch(" + toJavaScriptLiteral(request.url) + ", {\n";
    code.append("  method: ").append(toJavaScriptLiteral(request.method)).append(",\n  headers: {\n");
    for (const HeaderLine& header : request.headers)
        code.append("    ")
            .append(toJavaScriptLiteral(header.name))
            .append(": ")
            .append(toJavaScriptLiteral(header.value))
            .append(",\n");
    code += "  },\n";
    if (request.body != nullptr)
        code.append("  body: JSON.stringify(")
            .append(jsonText(*request.body, JsonForm::JavaScript))
            .append(")\n");
    return code += "});";
}

} // namespace

class Samples::Impl {
  public:
    Impl(const openapi::OpenAPI& document, const SampleOptions& options)
        : document_(document), options_(options) {
        // Values that tell much and are read quickly.
        jv_generator::GeneratorConfig& config = generator_.config();
        config.setNumberRange(1, 100);
        config.setLengthRange(4, 12);
        config.setItemsRange(1, 2);
        config.setPropertiesRange(0, UINT64_MAX);
    }

    [[nodiscard]] RequestSamples request(const openapi::OperationRef& ref) {
        const Request request = requestOf(ref);
        RequestSamples samples;
        if (options_.curl)
            samples.curl = CodeSample{curlText(request), request.generated};
        if (options_.vanillaJs)
            samples.vanillaJs = CodeSample{vanillaJsText(request), request.generated};
        return samples;
    }

    [[nodiscard]] std::vector<ResponseSample> responses(const openapi::OperationRef& ref) {
        std::vector<ResponseSample> samples;
        for (const auto& entry : ref.operation->responses()) {
            const openapi::MediaType* mediaType = jsonOf(entry);
            if (mediaType == nullptr)
                continue;
            const SampleValue value = valueOf(describedBy(*mediaType), options_.useResponseExamples);
            if (value.value != nullptr)
                samples.push_back({std::string(entry.name()),
                                   {jsonText(*value.value, JsonForm::Indented), value.generated}});
        }
        return samples;
    }

    [[nodiscard]] static std::vector<ResponseSchema> responseSchemas(const openapi::OperationRef& ref) {
        std::vector<ResponseSchema> schemas;
        for (const auto& entry : ref.operation->responses()) {
            const auto* response = openapi::resolveTo<openapi::Response>(entry.value.get());
            if (response == nullptr)
                continue;
            for (const auto& content : response->content()) {
                const auto* mediaType = openapi::resolveTo<openapi::MediaType>(content.value.get());
                const Node* schema = mediaType == nullptr ? nullptr : mediaType->schemaNode();
                if (schema != nullptr && schema->source() != nullptr)
                    schemas.push_back({std::string(entry.name()), std::string(content.name()),
                                       jsonText(*schema->source(), JsonForm::Indented)});
            }
        }
        return schemas;
    }

  private:
    [[nodiscard]] static const openapi::MediaType* jsonOf(const openapi::NodeMap::Entry& response) {
        const auto* object = openapi::resolveTo<openapi::Response>(response.value.get());
        return object == nullptr ? nullptr : jsonMediaType(object->content()).mediaType;
    }

    [[nodiscard]] static NamedMediaType jsonBodyOf(const openapi::OperationRef& ref) {
        const openapi::RequestBody* body = ref.operation->requestBody();
        return body == nullptr ? NamedMediaType{} : jsonMediaType(body->content());
    }

    [[nodiscard]] Request requestOf(const openapi::OperationRef& ref) {
        const openapi::Server& server = serverOf(document_, ref);
        Request request;
        request.method = toUpperCase(openapi::operationKey(ref.method));
        const NamedMediaType json = jsonBodyOf(ref);
        std::vector<ValuedParameter> parameters;
        for (const Parameter* parameter : ref.operation->effectiveParameters()) {
            if (!isSent(*parameter, json))
                continue;
            const SampleValue value = valueOf(describedBy(*parameter), true);
            if (value.value == nullptr)
                continue;
            request.generated |= value.generated;
            parameters.push_back({parameter, value.value});
            if (parameter->location() != openapi::ParameterLocation::Header)
                continue;
            if (std::optional<std::string> text = headerText(parameters.back()))
                request.headers.push_back({std::string(parameter->name()), std::move(*text)});
        }
        request.url = requestUrl(server, ref.path, parameters);
        if (json.mediaType != nullptr) {
            request.headers.push_back({"Content-Type", std::string(json.name)});
            const SampleValue body = valueOf(describedBy(*json.mediaType), options_.useRequestBodyExamples);
            request.body = body.value;
            request.generated |= body.generated;
        }
        return request;
    }

    /// Whether a parameter shows in a request: cookies do not, nor does a header that the body decides.
    [[nodiscard]] static bool isSent(const Parameter& parameter, const NamedMediaType& json) {
        switch (parameter.location()) {
        case openapi::ParameterLocation::Cookie:
            return false;
        case openapi::ParameterLocation::Header:
            return json.mediaType == nullptr || compareIgnoreCase(parameter.name(), "Content-Type") != 0;
        default:
            return true;
        }
    }

    [[nodiscard]] SampleValue valueOf(const Described& described, bool useExamples) {
        if (const JV* example = useExamples ? exampleOf(described) : nullptr)
            return {example, false};
        if (described.schema == nullptr || described.schema->source() == nullptr)
            return {};
        return {generated(sampledNode(*described.schema)), true};
    }

    /// Null when no value fits the schema.
    [[nodiscard]] const JV* generated(const Node& schema) {
        if (!isPrepared_)
            prepare();
        const auto [known, isNew] = values_.try_emplace(&schema);
        if (isNew) {
            try {
                generator_.choose(schema);
                known->second = generator_.generate();
            } catch (const jv_generator::NoValueError&) {
                return nullptr; // and so there is no sample of it
            }
        }
        return known->second.get();
    }

    /// Lets the generator read all schemas that values will be asked for.
    void prepare() {
        std::vector<const Node*> schemas;
        std::unordered_set<const Node*> known;
        const auto add = [&](const Described& described, bool useExamples) {
            if (described.schema == nullptr || described.schema->source() == nullptr ||
                (useExamples && exampleOf(described) != nullptr))
                return;
            const Node& schema = sampledNode(*described.schema);
            if (known.insert(&schema).second)
                schemas.push_back(&schema);
        };
        for (const openapi::OperationRef& ref : openapi::operationsOf(document_)) {
            for (const Parameter* parameter : ref.operation->effectiveParameters())
                add(describedBy(*parameter), true);
            if (const openapi::MediaType* json = jsonBodyOf(ref).mediaType)
                add(describedBy(*json), options_.useRequestBodyExamples);
            for (const auto& entry : ref.operation->responses()) {
                if (const openapi::MediaType* json = jsonOf(entry))
                    add(describedBy(*json), options_.useResponseExamples);
            }
        }
        generator_.setSchemas(schemas);
        isPrepared_ = true;
    }

    const openapi::OpenAPI& document_;
    SampleOptions options_;
    jv_generator::Generator generator_;
    bool isPrepared_ = false;
    std::unordered_map<const Node*, std::unique_ptr<JV>> values_; ///< null where there is none
};

Samples::Samples(const openapi::OpenAPI& document, const SampleOptions& options)
    : impl_(std::make_unique<Impl>(document, options)) {}

Samples::~Samples() = default;

RequestSamples Samples::request(const openapi::OperationRef& ref) {
    return impl_->request(ref);
}

std::vector<ResponseSample> Samples::responses(const openapi::OperationRef& ref) {
    return impl_->responses(ref);
}

std::vector<ResponseSchema> Samples::responseSchemas(const openapi::OperationRef& ref) {
    return Impl::responseSchemas(ref);
}

} // namespace specloom::openapi_generator::doc_html
