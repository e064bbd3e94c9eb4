#include "jv/deser.h"
#include "jv/jv_error.h"
#include "openapi_format/configuration.h"
#include "test_support/failure.h"

#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_format {
namespace {

using test_support::failureOf;

Configuration configured(std::string_view section) {
    const auto document = jv::parseDocument(section, {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
    return Configuration::load(document->root());
}

TEST(Configuration, withoutSectionIsTheRecommendedOne) {
    const Configuration none = Configuration::load(nullptr);
    const Configuration named = configured("extends: recommended");
    for (const Configuration& configuration : {none, named}) {
        EXPECT_EQ(configuration.format(), std::nullopt);
        EXPECT_EQ(configuration.indent(), 2);
        EXPECT_EQ(configuration.defaultOrder(), PropertyOrder::original());
        EXPECT_EQ(configuration.orders().size(), 27u);
        EXPECT_EQ(configuration.orderOf("reference"),
                  PropertyOrder::fixed({"$ref", "summary", "description"}));
        EXPECT_EQ(configuration.orderOf("paths"), PropertyOrder::sorted());
        EXPECT_FALSE(configuration.orderOf("webhooks").isSet());
    }
}

TEST(Configuration, keysOverlayWhatIsExtended) {
    const Configuration configuration = configured(R"(
openapi:
  property_order:
    contact: [email, name]
    paths: original
    license: []
    default: sorted
  indent: 4
  format: json
extends: recommended
)");
    EXPECT_EQ(configuration.format(), jv::DocumentFormat::Json);
    EXPECT_EQ(configuration.indent(), 4);
    EXPECT_EQ(configuration.defaultOrder(), PropertyOrder::sorted());
    EXPECT_EQ(configuration.orderOf("contact"), PropertyOrder::fixed({"email", "name"}));
    EXPECT_EQ(configuration.orderOf("paths"), PropertyOrder::original());
    EXPECT_EQ(configuration.orderOf("license"), PropertyOrder::fixed({}));
    EXPECT_EQ(configuration.orderOf("responses"), PropertyOrder::sorted()) << "not overlaid";
}

TEST(Configuration, extendsNothingByItself) {
    for (const char* section :
         {"{}", "extends: original", "openapi: {}", "{openapi: {property_order: {}}, other: 1}"}) {
        SCOPED_TRACE(section);
        const Configuration configuration = configured(section);
        EXPECT_TRUE(configuration.orders().empty());
        EXPECT_EQ(configuration.defaultOrder(), PropertyOrder::original());
        EXPECT_EQ(configuration.indent(), 2);
        EXPECT_EQ(configuration.format(), std::nullopt);
    }
}

TEST(Configuration, indentIsAnIntegerInAnySpelling) {
    for (const auto& [text, spaces] : {std::pair{"0", 0},
                                       {"-1", -1},
                                       {"3.0", 3},
                                       {"1e1", 10},
                                       {"100", 100},
                                       {"-99999999999999999999999", INT32_MIN}})
        EXPECT_EQ(configured(std::string("openapi: {indent: ") + text + "}").indent(), spaces) << text;
}

TEST(Configuration, faults) {
    struct Case {
        const char* section;
        const char* message;
    };
    const std::vector<Case> cases = {
        {"extends: [recommended]", "Extends must be a string"},
        {"extends: null", "Extends must be a string"},
        {"extends: strict", "Unknown extends value: strict"},
        {"extends: recommended.yaml", "Unknown extends value: recommended.yaml"},
        {"extends: \"\"", "Unknown extends value: "},
        {"openapi: 3", "An object value is expected for 'openapi'."},
        {"openapi: {format: xml}", "Unknown file format: xml"},
        {"openapi: {format: JSON}", "Unknown file format: JSON"},
        {"openapi: {format: 1}", "A string value is expected for 'format'."},
        {"openapi: {indent: wide}", "An integer value is expected for 'indent'."},
        {"openapi: {indent: 2.5}", "An integer value is expected for 'indent'."},
        {"openapi: {indent: 101}", "Indent must be at most 100"},
        {"openapi: {indent: 99999999999999999999999}", "Indent must be at most 100"},
        {"openapi: {property_order: sorted}", "An object value is expected for 'property_order'."},
        {"openapi: {property_order: {default: [a]}}", "Default order must be a string"},
        {"openapi: {property_order: {default: fixed}}", "Unsupported order shortcut: fixed"},
        {"openapi: {property_order: {info: alphabetical}}", "Unsupported order shortcut: alphabetical"},
        {"openapi: {property_order: {info: [title, 1]}}", "Element is not a string"},
        {"openapi: {property_order: {info: {title: 1}}}",
         "Property order block must be a string or an array"},
        {"openapi: {property_order: {info: null}}", "Property order block must be a string or an array"},
        {"openapi: {property_order: {infos: sorted}}", "Unknown object kind: infos"},
    };
    for (const Case& fault : cases) {
        EXPECT_EQ(failureOf<std::runtime_error>([&] { return configured(fault.section); }), fault.message)
            << fault.section;
    }
}

TEST(Configuration, faultsNameTheValue) {
    const auto document = jv::parseDocument(R"({"openapi": {"property_order":
                              {"info": ["title", 1]}}})",
                                            {.format = jv::DocumentFormat::Json, .refLoader = {}});
    try {
        static_cast<void>(Configuration::load(document->root()));
        ADD_FAILURE() << "was accepted";
    } catch (const jv::JVError& error) {
        ASSERT_NE(error.value(), nullptr);
        EXPECT_EQ(error.value(), document->lookup("/openapi/property_order/info/1"));
    }
}

TEST(PropertyOrder, accessorsAreChecked) {
    EXPECT_EQ(failureOf([] { return PropertyOrder().mode(); }), "Property order is not set");
    for (const PropertyOrder& order : {PropertyOrder(), PropertyOrder::original(), PropertyOrder::sorted()})
        EXPECT_EQ(failureOf([&] { return order.keys(); }), "Property order is not fixed");
    EXPECT_EQ(PropertyOrder::sorted().mode(), PropertyOrder::Mode::Sorted);
    EXPECT_EQ(PropertyOrder::fixed({"b", "a"}).keys(), (std::vector<std::string>{"b", "a"}));
}

} // namespace
} // namespace specloom::openapi_format
