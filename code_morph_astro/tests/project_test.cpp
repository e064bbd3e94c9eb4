#include "code_morph_astro/project.h"
#include "foundation/memory_file_system.h"
#include "test_support/failure.h"

#include <string> // std::string

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::code_morph::astro {
namespace {

TEST(AstroProject, hasTheLayoutOfAstro) {
    MemoryFileSystem memory;
    Project project(memory);
    project.setRootPath("site");
    EXPECT_EQ(project.page("operations/index").path(), "site/src/pages/operations/index.astro");
    EXPECT_EQ(project.component("Sidebar").path(), "site/src/components/Sidebar.astro");
    EXPECT_EQ(project.astroConfig().path(), "site/astro.config.mjs");
    EXPECT_EQ(project.packageJson().path(), "site/package.json");
    EXPECT_EQ(project.tailwindConfig().path(), "site/tailwind.config.cjs");
    EXPECT_EQ(project.tsConfig().path(), "site/tsconfig.json");
    EXPECT_EQ(project.files().size(), 6u);
    EXPECT_EQ(test_support::failureOf([&] { project.page("operations/index"); }),
              "Source file already exists: site/src/pages/operations/index.astro");
    EXPECT_THAT(test_support::failureOf([&] { project.page("../x"); }), testing::HasSubstr("only dots"));
}

} // namespace
} // namespace specloom::code_morph::astro
