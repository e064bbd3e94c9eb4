#include "code_morph_typescript/names.h"
#include "code_morph_typescript/project.h"
#include "code_morph_typescript/source_file.h"
#include "foundation/escapes.h"
#include "foundation/file_system.h"

#include <cstdlib>    // std::getenv
#include <filesystem> // std::filesystem::path
#include <fstream>    // std::ofstream
#include <stdexcept>  // std::runtime_error
#include <string>     // std::string

#include <gtest/gtest.h>

namespace specloom::code_morph::typescript {
namespace {

/// Stands for a model of types.
class NamedType final : public base::Node {
  public:
    void write(std::string& out) const override { out += "Promise<void>"; }
};

class SourceFileTest : public testing::Test {
  protected:
    [[nodiscard]] std::string written() const {
        std::string out;
        file.write(out);
        return out;
    }

    LocalFileSystem files;
    Project project{files};
    SourceFile& file = project.sourceFile("pets/actions");
};

TEST_F(SourceFileTest, aWholeModule) {
    const NamedType promise;
    file.addExportAll("./types");
    for (const char* name : {"init", "setAuthCookie", "dropped"})
        file.addExport("./utils", name);
    for (const char* name : {"makeUrl", "callApi", "makeUrl", "dropped"})
        file.addImport("./utils", name);
    file.addImport("./types", "Pet");
    file.addImport("./utils", "callApi");

    Function& find = file.addFunction("findPets");
    find.setExported(true);
    find.setAsync(true);
    find.setReturnType(&promise);
    find.setDocComment("/** is kept, and not written */");
    find.addParameter("params", "Record<string, unknown>").setType(&promise);
    Parameter& extra = find.addParameter("extra", "");
    extra.setOptional(true);
    extra.setType(&promise);
    find.addParameter("untyped", "");
    // What a document could say to break out of a literal.
    const std::string hostile = "/a'\"`${x}\\*/\r\n\u2028\u2029\u0085\b\f\t\v\x1b\x7f</script>";
    find.addLine("const url = " + toJsonLiteral(hostile) + ";");
    find.addLine("const same = " + toJavaScriptLiteral(hostile) + ";");
    find.addLine("\n            if (params) {\n\n              callApi(url);\n            }\n        ");
    file.addFunction("empty").addLine("");
    file.addFunction("none");
    file.addImport(hostile, "x");

    const std::filesystem::path golden = SPECLOOM_TEST_DIR "/tests/golden/module.ts";
    if (std::getenv("SPECLOOM_UPDATE_GOLDEN") != nullptr)
        std::ofstream(golden, std::ios::binary) << written();
    EXPECT_EQ(written(), files.readFile(golden.string()));
    file.render();
    EXPECT_EQ(file.text(), written());
}

TEST_F(SourceFileTest, linesBetweenTheSections) {
    EXPECT_EQ(written(), "");
    file.addExportAll("./a");
    file.addExport("./a", "b");
    EXPECT_EQ(written(), "export * from \"./a\";\n");
    file.addFunction("f");
    file.addFunction("g");
    EXPECT_EQ(written(), "function f() {\n}\n\nfunction g() {\n}\nexport * from \"./a\";\n");
    file.addImport("./b", "b");
    EXPECT_EQ(written().substr(0, 34), "import { b } from \"./b\";\n\nfunction");
}

TEST_F(SourceFileTest, oneFunctionOfAName) {
    file.addFunction("temp");
    try {
        file.addFunction("temp");
        FAIL() << "nothing thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "Function already exists temp");
    }
    EXPECT_EQ(file.functions().size(), 1U);
}

TEST_F(SourceFileTest, filesOfAPackage) {
    EXPECT_EQ(file.path(), "src/pets/actions.ts");
    EXPECT_EQ(project.packageJson().path(), "package.json");
    EXPECT_EQ(project.tsConfig().path(), "tsconfig.json");
    EXPECT_THROW(project.sourceFile("modules/../../../x/index"), std::runtime_error);
    EXPECT_THROW(project.sourceFile("modules//index"), std::runtime_error);
}

TEST(ModuleBinding, keepsWhatMayBeDeclared) {
    for (const char* name : {"pets", "_pets2", "type", "of", "async", "undefined"})
        EXPECT_EQ(toModuleBinding(name), name);
    for (const std::string name : {"2fast", "class", "module", "yield", "await", "__dirname", ""})
        EXPECT_EQ(toModuleBinding(name), "_" + name);
}

} // namespace
} // namespace specloom::code_morph::typescript
