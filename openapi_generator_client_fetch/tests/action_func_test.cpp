#include "code_morph_typescript/project.h"
#include "foundation/memory_file_system.h"
#include "openapi_generator_client_fetch/action_func.h"
#include "test_support/read_tree.h"
#include "test_support/temporary_folder.h"

#include <gtest/gtest.h>

namespace specloom::openapi_generator::client_fetch {
namespace {

// The plugin sets no types, so that nothing else would show what comes of them.
TEST(ActionFunc, typesBringTheirImportsAndTheBody) {
    const test_support::TemporaryFolder folder;
    const auto tree = test_support::readTree(
        folder.write("api.json",
                     R"({"openapi": "3.1.0", "info": {"title": "t", "version": "v"}, "paths": {"/a": {
            "get": {"operationId": "a", "summary": "Sums up", "responses": {}},
            "put": {"operationId": "b", "responses": {}}}}})"));
    MemoryFileSystem memory;
    code_morph::typescript::Project project(memory);
    auto& file = project.sourceFile("actions");
    const NamedType converted{.name = "Converted", .keyCase = "snake"};
    const NamedType plain{.name = "Plain", .keyCase = std::nullopt};
    const auto refs = openapi::operationsOf(tree.result->root());
    ActionFunc first(file, refs.at(0));
    first.setRequestType(&converted);
    first.setResponseType(&plain);
    first.setJsonResponse(true);
    first.setNeedsAuthorization(true);
    ActionFunc second(file, refs.at(1));
    second.setRequestType(&plain);
    for (ActionFunc* part : {&first, &second}) {
        part->collectData();
        part->generateCode();
    }
    project.saveAll();
    // Of several names from one module the last is left out.
    EXPECT_EQ(
        memory.readFile("src/actions.ts"),
        R"(import { COMMON_HEADERS, makeUrl, callJsonApi, authorizeRequest, ExtraCallParams, applyExtraParams } from "./utils";
import { Converted } from "./types";
import { JSONValue } from "@tessel/spec-tools-core";

export async function a(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/a");
  const body = ${transformFunc}(params.body as unknown as JSONValue);
}

export async function b(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/a");
  const body = params.body;
}
)");
    EXPECT_EQ(file.functions().front()->docComment(),
              "/**\n * Sums up\n *\n * @param params\n * @param extraParams\n */");
}

} // namespace
} // namespace specloom::openapi_generator::client_fetch
