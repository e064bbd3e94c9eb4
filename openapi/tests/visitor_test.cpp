#include "openapi/node_visitor.h"
#include "test_support/corpora.h"
#include "test_support/read_text.h"

#include <string> // std::string

#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

/// Writes a line for each call of a hook.
class Recorder final : public NodeVisitHandler {
  public:
    explicit Recorder(const ReadResult& result) : result_(result) {}

#define SPECLOOM_RECORD(Class)                                                                               \
    void visit(const Class&) override {                                                                      \
        log_ += #Class;                                                                                      \
    }
    SPECLOOM_RECORD(Discriminator)
    SPECLOOM_RECORD(XML)
    SPECLOOM_RECORD(OAuthFlow)
    SPECLOOM_RECORD(OAuthFlows)
    SPECLOOM_RECORD(MediaType)
    SPECLOOM_RECORD(Encoding)
    SPECLOOM_RECORD(SecurityRequirement)
    SPECLOOM_RECORD(Tag)
    SPECLOOM_RECORD(ExternalDocumentation)
    SPECLOOM_RECORD(Operation)
    SPECLOOM_RECORD(Callback)
    SPECLOOM_RECORD(Link)
    SPECLOOM_RECORD(SecurityScheme)
    SPECLOOM_RECORD(Header)
    SPECLOOM_RECORD(RequestBody)
    SPECLOOM_RECORD(Example)
    SPECLOOM_RECORD(Parameter)
    SPECLOOM_RECORD(Response)
    SPECLOOM_RECORD(Responses)
    SPECLOOM_RECORD(Schema)
    SPECLOOM_RECORD(Components)
    SPECLOOM_RECORD(PathItem)
    SPECLOOM_RECORD(Paths)
    SPECLOOM_RECORD(ServerVariable)
    SPECLOOM_RECORD(Server)
    SPECLOOM_RECORD(License)
    SPECLOOM_RECORD(Contact)
    SPECLOOM_RECORD(Info)
    SPECLOOM_RECORD(OpenAPI)
#undef SPECLOOM_RECORD
    void visit(const Node& node) override {
        log_ += ' ' + (node.source() == nullptr ? "(made)" : result_.pointerOf(node)) + '\n';
    }

    [[nodiscard]] const std::string& log() const {
        return log_;
    }

  private:
    const ReadResult& result_;
    std::string log_;
};

/// A document that uses every class and every keyword that leads on, with references forth and back.
TEST(NodeVisitor, meetsEveryObjectOnceInItsOrder) {
    const std::string folder = SPECLOOM_TEST_DIR "/tests/golden/";
    const auto result = test_support::readText(test_support::fileBytes(folder + "every-object.yaml"),
                                               jv::DocumentFormat::Yaml);
    Recorder recorder(*result);
    NodeVisitor visitor(recorder);
    visitor.visit(result->root());
    EXPECT_EQ(recorder.log(), test_support::fileBytes(folder + "every-object.walk"));
    const std::string once = recorder.log();
    visitor.visit(result->root().paths());
    EXPECT_EQ(recorder.log(), once) << "a visitor meets nothing twice";
}

TEST(NodeVisitor, startsAnywhereAndIgnoresOtherVisitors) {
    const auto result = test_support::readText(R"(openapi: 3.1.0
info: {title: t, version: "1"}
components: {schemas: {A: {items: {$ref: "#/components/schemas/A"}, not: {$ref: "#/components/schemas/B"}}, B: {}}}
)",
                                               jv::DocumentFormat::Yaml);
    const Components& components = result->root().components();
    Recorder recorder(*result);
    NodeVisitor(recorder).visit(*components.schema("A"));
    NodeVisitor(recorder).visit(*components.schemas().find("B"));
    EXPECT_EQ(recorder.log(), "Schema /components/schemas/A\nSchema /components/schemas/B\n"
                              "Schema /components/schemas/B\n");
}

} // namespace
} // namespace specloom::openapi
