#include "jv/json_reader.h"
#include "openapi/extensions.h"
#include "openapi/openapi.h"
#include "openapi/reference.h"
#include "test_support/failure.h"
#include "test_support/read_text.h"

#include <functional> // std::function
#include <memory>     // std::unique_ptr
#include <string>     // std::string
#include <utility>    // std::move
#include <vector>     // std::vector

#include <fmt/format.h> // fmt::format
#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

using test_support::failureOf;

TEST(Node, referencesReferToTheObjectAndAreKnownToIt) {
    OpenAPI root;
    Schema* target = root.components().createSchema("Target");
    Schema* other = root.components().createSchema("Other");
    Reference* first = root.components().addReference(ComponentSection::Schemas, "First", *target);
    Reference* second = root.components().addReference(ComponentSection::Schemas, "Second", *first);
    EXPECT_EQ(second->target(), target) << "no reference to a reference";
    EXPECT_EQ(first->firstReference(), nullptr);
    EXPECT_EQ(root.components().schema("Second"), target);
    EXPECT_EQ(second->parent(), &root.components());

    const auto countOf = [](const Node& node) {
        int count = 0;
        for (const Reference* reference = node.firstReference(); reference != nullptr;
             reference = reference->nextReference())
            ++count;
        return count;
    };
    EXPECT_EQ(countOf(*target), 2);
    first->setTarget(target);
    EXPECT_EQ(countOf(*target), 2) << "the same target again changes nothing";
    first->setTarget(other);
    EXPECT_EQ(countOf(*target), 1);
    EXPECT_EQ(countOf(*other), 1);

    auto holder = std::make_unique<Schema>(&root);
    const std::unique_ptr<Reference> dangling = holder->createReference(&root);
    holder.reset();
    EXPECT_EQ(dangling->resolve(), nullptr) << "the target is gone";
    EXPECT_EQ(failureOf([&] { (void)dangling->createReference(&root); }), "Reference has no target");
}

TEST(Node, aSecondExtensionOfOneKeyEmptiesIt) {
    OpenAPI root;
    root.setExtension("x-b", Value(jv::JV(2)));
    root.setExtension("x-a", Value(jv::JV(1)));
    EXPECT_EQ(root.extensions().begin()->name(), "x-a") << "byte-wise order";
    EXPECT_NE(root.findExtension("x-b"), nullptr);
    EXPECT_EQ(root.findExtension("x-"), nullptr);
    root.setExtension("x-b", Value(jv::JV(3)));
    EXPECT_EQ(root.findExtension("x-b"), nullptr);
    root.replaceExtension("x-a", Value(jv::JV("new")));
    EXPECT_EQ(root.findExtension("x-a")->text(), "new");
    EXPECT_EQ(root.info().findExtension("x-a"), nullptr);
}

TEST(Node, ownExtensionsAreFoundByPointer) {
    const auto document = jv::parseJSON(R"({"codegen":{"name":"n","disabled":true}})");
    OpenAPI root;
    EXPECT_EQ(extensions::find(root, "/codegen/name"), nullptr);
    root.setExtension("x-specloom", Value(*document->root()));
    EXPECT_EQ(extensions::findString(root, "/codegen/name"), "n");
    EXPECT_EQ(extensions::findBoolean(root, "/codegen/disabled"), true);
    EXPECT_EQ(extensions::findBoolean(root, "/codegen/none"), std::nullopt);
    EXPECT_EQ(failureOf([&] { (void)extensions::findBoolean(root, "/codegen/name"); }),
              "Extension '/codegen/name' does not represent a boolean");
    EXPECT_EQ(failureOf([&] { (void)extensions::findString(root, "/codegen"); }),
              "Extension '/codegen' does not represent a string");

    root.info().setExtension("x-specloom", Value(jv::JV("text")));
    EXPECT_EQ(failureOf([&] { (void)extensions::findString(root.info(), "/anything"); }),
              "Extension root is not an object");
}

TEST(OpenAPI, indexesOperationsById) {
    OpenAPI root;
    PathItem* item = root.paths().createPathItem("/a");
    Operation* get = item->createOperation(OperationType::Get);
    Operation* put = item->createOperation(OperationType::Put);
    get->setOperationId("one");
    EXPECT_EQ(root.findOperation("one"), get);
    get->setOperationId("two");
    EXPECT_EQ(root.findOperation("one"), nullptr);
    EXPECT_EQ(root.findOperation("two"), get);
    put->setOperationId("two");
    EXPECT_EQ(root.findOperation("two"), get) << "the first one stays";
    put->setOperationId("three");
    EXPECT_EQ(root.findOperation("two"), nullptr) << "renaming either erases the key";
    EXPECT_EQ(root.findOperation("three"), put);

    auto webhook = std::make_unique<PathItem>(&root);
    webhook->createOperation(OperationType::Post)->setOperationId("gone");
    EXPECT_NE(root.findOperation("gone"), nullptr);
    webhook.reset();
    EXPECT_EQ(root.findOperation("gone"), nullptr);
}

TEST(Server, itsUrlDecidesTheVariables) {
    OpenAPI root;
    const Server* server = root.createServer("https://{host}.{zone}/}{open");
    EXPECT_EQ(server->variables().size(), 2u);
    EXPECT_NE(server->variable("zone"), nullptr);
    EXPECT_EQ(server->variable("open"), nullptr);
    EXPECT_EQ(failureOf([&] { root.createServer("{a}{}"); }), "Empty variable name");
    EXPECT_EQ(failureOf([&] { root.createServer("{a}{b}{a}"); }), "Duplicate server variable name: a");
    EXPECT_EQ(root.servers().size(), 1u);
}

TEST(Factories, refuseWhatIsThereInTheirOwnWords) {
    OpenAPI root;
    PathItem* item = root.paths().createPathItem("/a");
    Operation* operation = item->createOperation(OperationType::Get);
    Schema* schema = root.components().createSchema("S");
    Tag* tag = root.createTag("t");
    Response* response = operation->responses().createResponse("200");
    QueryParameter* shared = root.components().createQueryParameter("P", "q");

    struct Case {
        const char* text;
        std::function<void()> action; ///< works once
    };
    const std::vector<Case> cases{
        {"Contact already exists", [&] { root.info().createContact(); }},
        {"License already exists", [&] { root.info().createLicense("MIT"); }},
        {"ExternalDocs already exists", [&] { root.createExternalDocs("u"); }},
        {"External docs already exist", [&] { tag->createExternalDocs("u"); }},
        {"ExternalDocs already set", [&] { schema->createExternalDocs("u"); }},
        {"Discriminator already set", [&] { schema->createDiscriminator("p"); }},
        {"XML already set", [&] { schema->createXML(); }},
        {"Webhook already exists", [&] { root.createWebhook("w"); }},
        {"Path already exists", [&] { root.paths().createPathItem("/b"); }},
        {"operation already exists", [&] { item->createOperation(OperationType::Put); }},
        {"Parameter already exists", [&] { operation->createHeaderParameter("h"); }},
        {"Parameter already exists", [&] { operation->addParameterReference(*shared); }},
        {"Request body already exists", [&] { operation->createRequestBody(); }},
        {"Callback already exists", [&] { operation->createCallback("c"); }},
        {"Response already exists", [&] { operation->responses().createResponse("404"); }},
        {"Header already exists", [&] { response->createHeader("h"); }},
        {"Schema already exists", [&] { root.components().createSchema("T"); }},
        {"Schema already exists", [&] { schema->addPropertyReference("p", *schema); }},
    };
    for (const auto& [text, action] : cases) {
        EXPECT_EQ(failureOf(action), "");
        EXPECT_EQ(failureOf(action), text);
    }
    EXPECT_EQ(failureOf([&] { root.addWebhookReference("w", *item); }), "Path already exists");
    const ExternalDocumentation* docs = operation->createExternalDocs("first");
    EXPECT_EQ(operation->createExternalDocs("second"), docs);
    EXPECT_EQ(operation->externalDocs()->url(), "first");
    item->createQueryParameter("q");
    EXPECT_EQ(failureOf([&] { item->createQueryParameter("q"); }), "") << "a path item takes it twice";
    EXPECT_EQ(schema->createItems(), schema->createItems());
}

TEST(Paths, renamesWithoutMovingThePathItem) {
    OpenAPI root;
    Paths& paths = root.paths();
    PathItem* item = paths.createPathItem("/b");
    paths.createPathItem("/c");
    EXPECT_EQ(failureOf([&] { paths.rename("/none", "/none"); }), "");
    EXPECT_EQ(failureOf([&] { paths.rename("/none", ""); }), "Path does not exist /none");
    EXPECT_EQ(failureOf([&] { paths.rename("/b", ""); }), "New path URL cannot be empty");
    EXPECT_EQ(failureOf([&] { paths.rename("/b", "/c"); }), "Path already exists /c");
    EXPECT_EQ(paths.urlOf(item), "/b");
    paths.rename("/b", "/d");
    EXPECT_EQ(paths.find("/d"), item);
    EXPECT_EQ(paths.find("/b"), nullptr);
    EXPECT_EQ(paths.urlOf(item), "/d");
    EXPECT_EQ(paths.begin()->name(), "/c") << "byte-wise order";
    paths.addPathItemReference("/e", *item);
    EXPECT_EQ(paths.find("/e"), item);
    EXPECT_EQ(paths.urlOf(paths.items().find("/e")), "/e");
    EXPECT_EQ(paths.urlOf(&root), std::nullopt);

    const Node* reference = paths.items().find("/e");
    paths.renameAll([](std::string_view url, const Node& entry) {
        return url == "/c" ? std::string("/d") : entry.type() == NodeType::Reference ? "/a" : std::string();
    });
    EXPECT_EQ(paths.size(), 3u);
    EXPECT_EQ(paths.urlOf(item), "/d") << "its new name is empty";
    EXPECT_NE(paths.find("/c"), nullptr) << "its new name is taken";
    EXPECT_EQ(paths.urlOf(reference), "/a");
    EXPECT_EQ(paths.begin()->value.get(), reference);
}

TEST(Operation, takesDeclaredTagsAndItsPathItemsParameters) {
    OpenAPI root;
    Tag* first = root.createTag("pets");
    root.createTag("pets");
    PathItem* item = root.paths().createPathItem("/a");
    Operation* operation = item->createOperation(OperationType::Post);
    EXPECT_EQ(operation->addTag("unknown"), nullptr);
    EXPECT_EQ(operation->addTag("pets"), first);
    EXPECT_EQ(operation->tags().size(), 1u);

    const Parameter* own = operation->createQueryParameter("id");
    item->createQueryParameter("id");
    const Parameter* inherited = item->createPathParameter("id");
    item->createPathParameter("id");
    EXPECT_EQ(operation->effectiveParameters(), (std::vector<const Parameter*>{own, inherited}));
    EXPECT_EQ(operation->parameterAt(0), own);
    EXPECT_THROW((void)operation->parameterAt(1), std::out_of_range);

    EXPECT_TRUE(operation->inheritsSecurity());
    operation->createSecurityRequirement();
    EXPECT_FALSE(operation->inheritsSecurity());
    operation->setInheritsSecurity(true);
    EXPECT_TRUE(operation->security().empty());
    EXPECT_EQ(failureOf([&] { operation->setOperationId(""); }), "OperationId cannot be empty");
    EXPECT_EQ(failureOf([] { (void)operationKey(static_cast<OperationType>(8)); }),
              "invalid operation key 8");
    EXPECT_TRUE(isOperationKey("trace"));
    EXPECT_FALSE(isOperationKey("Get"));
}

TEST(Schema, keepsKeywordsInTheirPlaces) {
    OpenAPI root;
    Schema* schema = root.components().createSchema("S");
    // Set against their order, so that each finds its place among those that are there.
    schema->createElse();
    schema->setMaxLength(5);
    schema->setTitle("t");
    schema->addProperty("b");
    schema->addProperty("a")->addType("string");
    schema->setExclusiveMinimum(number::Number(3));
    schema->setExclusiveMaximum(true);
    EXPECT_EQ(schema->title(), "t");
    EXPECT_EQ(schema->maxLength(), 5u);
    EXPECT_EQ(schema->minLength(), std::nullopt);
    EXPECT_NE(schema->elseSchema(), nullptr);
    EXPECT_EQ(schema->properties().begin()->name(), "a");
    EXPECT_EQ(std::get<number::Number>(schema->exclusiveMinimum()).compare(number::Number(3)), 0);
    EXPECT_TRUE(std::get<bool>(schema->exclusiveMaximum()));
    EXPECT_EQ(schema->keywordCount(), 6u);

    schema->addType("string");
    schema->addType("string");
    EXPECT_EQ(schema->types().size(), 1u);
    EXPECT_EQ(schema->types().single(), SchemaType::String);
    schema->addType(SchemaType::Null);
    EXPECT_EQ(schema->types().bits(), 0x212u) << "their number, and a bit for each";
    std::vector<Text> required;
    for (const char* name : {"b", "a", "b"})
        required.emplace_back(name);
    schema->setRequired(std::move(required));
    EXPECT_EQ(schema->required().size(), 2u);
    EXPECT_TRUE(schema->isRequired("a"));

    EXPECT_EQ(failureOf([&] { schema->addType("text"); }), "Invalid schema type: text");
    EXPECT_EQ(failureOf([] { (void)schemaTypeName(static_cast<SchemaType>(7)); }), "Invalid schema type");
    EXPECT_EQ(failureOf([&] { schema->setContentEncoding("base 64"); }), "Invalid content encoding");
    EXPECT_EQ(failureOf([&] { schema->setContentMediaType("text"); }), "Invalid content media type");
    EXPECT_EQ(failureOf([&] { schema->setContentMediaType("text/plain ; charset=utf-8"); }), "");
    EXPECT_EQ(failureOf([&] { schema->setDialect("urn:x"); }), "Unknown schema dialect: urn:x");
    EXPECT_EQ(failureOf([&] { schema->requireOpenAPI30(); }),
              "This operation is only supported in OpenAPI 3.0");
    EXPECT_EQ(failureOf([&] { schema->requireOpenAPI31(); }), "");
}

TEST(Schema, knowsWhatAcceptsEverythingOrNothing) {
    struct Case {
        const char* schema;
        bool always, never;
    };
    const std::vector<Case> cases{
        {"{}", true, false},
        {R"({"not": {}})", false, true},
        {R"({"not": {"not": {}}})", true, false},
        {R"({"type": "string"})", false, false},
        {R"({"title": "t"})", false, false},
        {R"({"allOf": [{}, {"not": {}}]})", false, true},
        {R"({"anyOf": [{}, {"not": {}}]})", true, false},
        {R"({"oneOf": [{}, {}]})", false, false},
        {R"({"allOf": [{"$ref": "#/components/schemas/S"}, {"$ref": "#/components/schemas/S"}]})", false,
         false},
    };
    for (const auto& [schema, always, never] : cases) {
        SCOPED_TRACE(schema);
        const auto result = test_support::readText(fmt::format(
            R"({{"openapi":"3.1.0","info":{{"title":"t","version":"1"}},"components":{{"schemas":{{"S":{}}}}}}})",
            schema));
        EXPECT_EQ(result->root().components().schema("S")->isAlwaysTrue(), always);
        EXPECT_EQ(result->root().components().schema("S")->isAlwaysFalse(), never);
    }
}

TEST(SchemaFormats, customOnesStandBesideTheBuiltIn) {
    SchemaFormatRegistry formats;
    const auto addAll = [&](const char* text) {
        const auto document = jv::parseJSON(text);
        formats.addFromJV(*document->root());
    };
    EXPECT_EQ(formats.find("uuid")->type, SchemaType::String);
    EXPECT_EQ(formats.find("int64")->type, SchemaType::Integer);
    EXPECT_EQ(formats.find("money"), nullptr);
    addAll("null");
    addAll(R"([{"name":"money","type":"number"}])");
    EXPECT_EQ(formats.find("money")->type, SchemaType::Number);
    for (const auto& [text, failure] : std::vector<std::pair<const char*, const char*>>{
             {"{}", "Custom format JV must be an array"},
             {R"([{"name":"uuid","type":"string"}])", "Schema format already exists: uuid"},
             {R"([{"name":"money","type":"string"}])", "Schema format already exists: money"},
             {R"([{"name":"x","type":"text"}])", "Invalid schema type: text"},
             {R"([{"type":"string"}])", "Required property 'name' is missing."},
         })
        EXPECT_EQ(failureOf([&, json = text] { addAll(json); }), failure);
}

} // namespace
} // namespace specloom::openapi
