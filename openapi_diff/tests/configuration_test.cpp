#include "jv/deser.h"
#include "jv/jv_error.h"
#include "openapi_diff/configuration.h"

#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <stdexcept>   // std::runtime_error
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_diff {
namespace {

using openapi::NodeType;
using enum ChangeLevel;

std::unique_ptr<jv::JVDocument> yaml(std::string_view text) {
    return jv::parseDocument(text, {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
}

Configuration configured(std::string_view section) {
    return Configuration::load(yaml(section)->root());
}

TEST(Configuration, rulesAreLaidOverTheRecommendedOnes) {
    const Configuration configuration = configured(R"(
rules:
  info: {title: none}
  license: {name: {add: none}}
  openapi: {tags: non_functional, externalDocs: {modify: breaking}}
  paths: {remove_item: nested}
  requestBody: {required: {remove: {if: false, then: none, else: breaking}}}
  schema: {deprecated: non_functional}
extends: [recommended]
)");
    using Kind = ChangeKind;
    struct Case {
        ConfigKey key;
        Kind kind;
        std::optional<bool> condition;
        ChangeLevel level;
    };
    const std::vector<Case> cases = {
        {ConfigKey::InfoTitle, Kind::PropertyAdded, {}, None},
        {ConfigKey::InfoTitle, Kind::PropertyModified, true, None},
        {ConfigKey::InfoSummary, Kind::PropertyModified, {}, NonFunctional},
        {ConfigKey::LicenseName, Kind::PropertyAdded, {}, None},
        {ConfigKey::LicenseName, Kind::PropertyRemoved, {}, Breaking}, // is not named
        {ConfigKey::OpenAPITags, Kind::ElementAdded, {}, NonFunctional},
        {ConfigKey::OpenAPITags, Kind::ElementRemoved, {}, NonFunctional},
        {ConfigKey::OpenAPITags, Kind::ElementModified, {}, NonFunctional},
        {ConfigKey::OpenAPITags, Kind::PropertyModified, {}, None}, // is no field, only its items are
        {ConfigKey::OpenAPIExternalDocs, Kind::PropertyModified, {}, Breaking},
        {ConfigKey::OpenAPIExternalDocs, Kind::PropertyAdded, {}, NonBreaking},
        {ConfigKey::Paths, Kind::KeyRemoved, {}, Nested},
        {ConfigKey::Paths, Kind::KeyAdded, {}, NonBreaking},
        {ConfigKey::RequestBodyRequired, Kind::PropertyRemoved, true, Breaking},
        {ConfigKey::RequestBodyRequired, Kind::PropertyRemoved, false, None},
        {ConfigKey::RequestBodyRequired, Kind::PropertyAdded, false, NonBreaking},
        {ConfigKey::SchemaDeprecated, Kind::PropertyModified, true, NonFunctional},
        {ConfigKey::SchemaDeprecated, Kind::PropertyModified, false, NonFunctional},
        {ConfigKey::SchemaDeprecated, Kind::PropertyAdded, true, None}, // classifies modifications alone
    };
    for (const Case& expected : cases) {
        SCOPED_TRACE(testing::Message()
                     << configKeyText(expected.key) << ", " << changeKindText(expected.kind));
        EXPECT_EQ(configuration.entry(expected.key).lookup(expected.kind, expected.condition),
                  expected.level);
    }
}

TEST(Configuration, withoutSectionIsTheRecommendedOneAndWithoutExtendsNothing) {
    EXPECT_EQ(Configuration::load(nullptr).entry(ConfigKey::InfoTitle).get(Action::Modify), Breaking);
    for (const char* section : {"{}", "extends: []", "rules: {}", "rules: {info: {summary: breaking}}"}) {
        SCOPED_TRACE(section);
        const Configuration configuration = configured(section);
        EXPECT_EQ(configuration.entry(ConfigKey::InfoTitle), NodeDiffConfig{});
        EXPECT_EQ(configuration.extension(NodeType::Info, "x-a"), NodeDiffConfig{});
    }
}

TEST(Configuration, extensionsHaveEntriesByKindOfNodeAndName) {
    const Configuration configuration = configured(R"(
extends: [recommended]
rules:
  contact: {x-a: {remove: breaking}}
  defaults: {extensions: {add: none}}
  parameter: {x-a: non_breaking}
  oauthFlow: {x-a: breaking}
  securityScheme: {x-b: breaking}
  paths: {remove_item: none, x-a: breaking}
)");
    const auto levels = [&](NodeType type, std::string_view name) {
        const NodeDiffConfig& entry = configuration.extension(type, name);
        return std::vector{entry.lookup(ChangeKind::ExtensionAdded),
                           entry.lookup(ChangeKind::ExtensionRemoved),
                           entry.lookup(ChangeKind::ExtensionModified)};
    };
    const auto all = [](ChangeLevel level) { return std::vector(3, level); };
    const std::vector defaults{None, NonFunctional, NonFunctional};
    EXPECT_EQ(levels(NodeType::Contact, "x-a"), (std::vector{None, Breaking, NonFunctional}));
    EXPECT_EQ(levels(NodeType::Contact, "x-b"), defaults);
    EXPECT_EQ(levels(NodeType::Info, "x-a"), defaults);
    EXPECT_EQ(levels(NodeType::CookieParameter, "x-a"), all(NonBreaking));
    EXPECT_EQ(levels(NodeType::ImplicitOAuthFlow, "x-a"), all(Breaking));
    EXPECT_EQ(levels(NodeType::OAuthFlows, "x-a"), defaults);
    EXPECT_EQ(levels(NodeType::MutualTLSSecurityScheme, "x-b"), all(Breaking));
    EXPECT_EQ(levels(NodeType::Paths, "x-a"), all(Breaking));
    EXPECT_EQ(configuration.entry(ConfigKey::Paths).get(Action::RemoveItem), None);
    EXPECT_EQ(levels(NodeType::SecurityRequirement, "x-a"), defaults);
    EXPECT_THROW(static_cast<void>(configuration.extension(static_cast<NodeType>(43), "x-a")),
                 std::runtime_error);
}

TEST(Configuration, faultsNameTheValue) {
    struct Case {
        const char* section;
        const char* message;
        const char* pointer;
    };
    const char* const option = "Invalid option";
    const char* const properties = "Unexpected properties";
    const char* const text = "Expected string";
    const char* const textOrObject = "Expected string or object";
    const std::vector<Case> cases = {
        {"extends: recommended", "An array value is expected for 'extends'.", ""},
        {"extends: [recommended, 1]", text, "/extends/1"},
        {"extends: [recommended, strict]", "Unknown ruleset: strict", "/extends/1"},
        {"rules: []", "An object value is expected for 'rules'.", ""},
        {"rulez: {}", properties, "/rulez"},
        {"rules: {infos: {title: none}}", properties, "/rules/infos"},
        {"rules: {info: none}", "An object value is expected for 'info'.", "/rules"},
        {"rules: {info: {titel: none}}", properties, "/rules/info/titel"},
        {"rules: {defaults: {title: none}}", properties, "/rules/defaults/title"},
        {"rules: {defaults: {extensions: [none]}}", textOrObject, "/rules/defaults/extensions"},
        {"rules: {info: {title: Breaking}}", option, "/rules/info/title"},
        {"rules: {info: {title: null}}", textOrObject, "/rules/info/title"},
        {"rules: {info: {title: {add: bad}}}", option, "/rules/info/title/add"},
        {"rules: {info: {title: {add: 1}}}", text, "/rules/info/title/add"},
        {"rules: {info: {title: {add_item: none}}}", properties, "/rules/info/title/add_item"},
        {"rules: {info: {title: {add: {if: true, then: none, else: none}}}}", text, "/rules/info/title/add"},
        {"rules: {info: {x-a: {add_item: none}}}", properties, "/rules/info/x-a/add_item"},
        {"rules: {openapi: {tags: {add: none}}}", properties, "/rules/openapi/tags/add"},
        {"rules: {paths: {x-a: 1}}", textOrObject, "/rules/paths/x-a"},
        {"rules: {operation: {deprecated: {}}}", "Expected 'modified' property",
         "/rules/operation/deprecated"},
        {"rules: {operation: {deprecated: {add: none}}}", properties, "/rules/operation/deprecated/add"},
        {"rules: {operation: {deprecated: {modify: 1}}}", textOrObject, "/rules/operation/deprecated/modify"},
        {"rules: {requestBody: {required: {add: {if: true, then: none}}}}",
         "Required property 'else' is missing.", "/rules/requestBody/required/add"},
        {"rules: {requestBody: {required: {add: {if: 1, then: none, else: none}}}}",
         "A boolean value is expected for 'if'.", "/rules/requestBody/required/add"},
        {"rules: {requestBody: {required: {add: {if: true, then: none, else: no}}}}", option,
         "/rules/requestBody/required/add/else"},
        {"rules: {requestBody: {required: {add: {if: true, then: none, else: none, elif: none}}}}",
         properties, "/rules/requestBody/required/add/elif"},
    };
    for (const Case& expected : cases) {
        SCOPED_TRACE(expected.section);
        const auto document = yaml(expected.section);
        try {
            static_cast<void>(Configuration::load(document->root()));
            ADD_FAILURE() << "was accepted";
        } catch (const jv::JVError& error) {
            EXPECT_STREQ(error.what(), expected.message);
            ASSERT_NE(error.value(), nullptr);
            EXPECT_EQ(error.value()->pointer(), expected.pointer);
        }
    }
}

} // namespace
} // namespace specloom::openapi_diff
