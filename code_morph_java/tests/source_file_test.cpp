#include "code_morph_java/project.h"
#include "foundation/memory_file_system.h"

#include <stdexcept> // std::invalid_argument

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::code_morph::java {
namespace {

TEST(JavaProject, putsClassesWhereBuildsLookForThem) {
    MemoryFileSystem files;
    Project project(files);
    project.setRootPath("out");
    EXPECT_EQ(project.mainClass("com.acme.Pet").path(), "out/src/main/java/com/acme/Pet.java");
    EXPECT_EQ(project.testClass("com.acme.PetTest").path(), "out/src/test/java/com/acme/PetTest.java");
    EXPECT_EQ(project.mainClass("com.acme.Dog").packageName(), "com.acme");
    EXPECT_THROW(project.mainClass("com.acme-1.Pet"), std::invalid_argument);
}

TEST(JavaSourceFile, importsWhatIsNotInSightOnce) {
    MemoryFileSystem files;
    Project project(files);
    SourceFile& file = project.mainClass("com.acme.Pet");
    for (const char* name : {"java.util.List", "com.acme.dto.Pet", "java.util.List", "", "Object",
                             "com.acme.Dog", "java.lang.String", "java.lang.reflect.Method"})
        file.addImport(name);
    EXPECT_THAT(file.imports(),
                testing::ElementsAre("com.acme.dto.Pet", "java.lang.reflect.Method", "java.util.List"));
    EXPECT_THROW(file.addImport("Com.acme.Pet"), std::invalid_argument);
    EXPECT_THROW(file.addImport("com.acme.pet"), std::invalid_argument);
}

} // namespace
} // namespace specloom::code_morph::java
