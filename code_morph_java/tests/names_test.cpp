#include "code_morph_java/spring/names.h"

#include <array>     // std::array
#include <stdexcept> // std::invalid_argument
#include <string>    // std::string

#include <gtest/gtest.h>

namespace specloom::code_morph::java {
namespace {

struct NameRow {
    std::string text;
    std::string identifier;
    std::string packagePart;
    std::string className;
};

TEST(JavaNames, areMadeOfAnyText) {
    const NameRow rows[] = {
        {"pet_store", "petStore", "petStore", "PetStore"},
        {"XMLParser", "xMLParser", "xMLParser", "XMLParser"},
        {"get_/pets/{id}", "getPetsId", "getPetsId", "GetPetsId"},
        {"io.k8s.api.v1", "io_k8s_api_v1", "io_k8s_api_v1", "Io_k8s_api_v1"},
        {"sort[by]", "sort_by_", "sort_by_", "Sort_by_"},
        {"2fast", "_2fast", "_2fast", "_2fast"},
        {"größe", "gr__e", "gr__e", "Gr__e"},
        {"$filter", "$filter", "_filter", "_filter"},
        {"class", "class1", "class1", "Class"},
        {"goto", "goto1", "goto1", "Goto"},
        {"abstract", "isAbstract", "abstract1", "Abstract"},
        {"boolean", "isBoolean", "boolean1", "Boolean"},
        {"byte", "isByte", "byte1", "Byte"},
        {"char", "isChar", "char1", "Char"},
        {"non-sealed", "nonSealed", "nonSealed", "NonSealed"},
        {"yield", "yield1", "yield1", "Yield"},
        {"Record", "record1", "record1", "Record"},
        {"var", "var", "var", "Var"},
        {"", "value", "root", "Value"},
        {"-/_", "value", "root", "Value"},
        {"é", "value", "_1", "_1"},
        {"éé", "__", "__", "__"},
        {"\r\n", "__", "__", "__"},
    };
    for (const NameRow& row : rows) {
        EXPECT_EQ(toIdentifier(row.text), row.identifier) << row.text;
        EXPECT_EQ(toPackagePart(row.text), row.packagePart) << row.text;
        EXPECT_EQ(toClassName(row.text), row.className) << row.text;
        EXPECT_TRUE(isValidClassName(toClassName(row.text))) << row.text;
        EXPECT_NO_THROW(checkUsablePackageName("com." + toPackagePart(row.text))) << row.text;
    }
}

TEST(JavaNames, ofMembersLeaveMethodsOfObjectAlone) {
    for (const std::string name :
         {"clone", "equals", "finalize", "getClass", "hashCode", "notify", "notifyAll", "toString", "wait"}) {
        EXPECT_EQ(toMemberName(name), name + "1");
        EXPECT_EQ(toIdentifier(name), name);
    }
    EXPECT_EQ(toMemberName("pet-id"), "petId");
}

TEST(JavaNames, ofFilesAreNotTooLong) {
    const std::string text(300, 'a');
    EXPECT_EQ(toIdentifier(text), std::string(longestName, 'a'));
    EXPECT_EQ(toPackagePart(text).size(), longestName);
    EXPECT_EQ(toClassName(text).size(), longestName);
    EXPECT_EQ(joinClassName("Pet", text).size(), longestName);
    EXPECT_EQ(joinClassName("Pet_1", "2nd-owner"), "Pet_12ndOwner");
}

TEST(JavaNames, areChecked) {
    for (const std::string name : {"a", "com.acme", "_a.b1_C", "com.class"})
        EXPECT_TRUE(isValidPackageName(name)) << name;
    for (const std::string name :
         {"", ".", "com.", ".com", "com..a", "Com", "com.1a", "com.a-b", "com.é", "a b"})
        EXPECT_FALSE(isValidPackageName(name)) << name;
    for (const std::string name : {"", "pet", "1Pet", "Pet-1", "P.Q", "Pét"})
        EXPECT_FALSE(isValidClassName(name)) << name;
    const auto messageOf = [](auto check, const std::string& name) -> std::string {
        try {
            check(name);
        } catch (const std::invalid_argument& error) {
            return error.what();
        }
        return "";
    };
    EXPECT_EQ(messageOf(checkClassName, "pet"), "Invalid class name: 'pet'");
    EXPECT_EQ(messageOf(checkPackageName, "Bad-Name"), "Invalid package name: 'Bad-Name'");
    EXPECT_EQ(messageOf(checkPackageName, "com.class"), "");
    EXPECT_EQ(messageOf(checkUsablePackageName, "com.class"), "Invalid package name: 'com.class'");
    EXPECT_EQ(packageOf("com.acme.Pet"), "com.acme");
    EXPECT_EQ(classOf("com.acme.Pet"), "Pet");
    EXPECT_EQ(packageOf("Pet"), "");
    EXPECT_EQ(classOf("Pet"), "Pet");
}

} // namespace
} // namespace specloom::code_morph::java
