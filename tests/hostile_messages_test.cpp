// Texts of documents, configurations and the command line in what the program says when it fails: they come
// to the terminal and into the logs of builds, where nothing of them may act.

#include "workspace.h"

#include <algorithm> // std::count
#include <map>       // std::map
#include <string>    // std::string
#include <vector>    // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace specloom::tests {
namespace {

using Json = nlohmann::json;

// Begins a command of a build, commands a terminal, ends lines, and turns the direction of writing.
const std::string hostile =
    "::error::a\x1b[31mb\r\n::error::c\n##vso[task.complete]\t\u009b\u202e\u2028\u2066#[";
const std::string hostileBytes = hostile + "\xff\xc3";

/// Why a text may act where it is printed; empty when it is harmless.
std::string actingPart(const std::string& text) {
    try {
        static_cast<void>(Json(text).dump()); // takes nothing but UTF-8
    } catch (const Json::exception& error) {
        return error.what();
    }
    for (const char c : text)
        if ((static_cast<unsigned char>(c) < 0x20 && c != '\n') || c == '\x7f')
            return "a control character";
    for (const char* acting : {"\u009b", "\u202e", "\u2028", "\u2066", "##vso[", "\n::"})
        if (("\n" + text).find(acting) != std::string::npos)
            return acting;
    return "";
}

struct HostileRun {
    std::string what;
    std::map<std::string, std::string> files; // JSON, in which @ stands for the hostile text
    std::vector<std::string> arguments;       // the same
    int lines = 1;                            // of the output
};

std::string withText(std::string text, const std::string& by) {
    if (const std::size_t at = text.find('@'); at != std::string::npos)
        text.replace(at, 1, by);
    return text;
}

void expectHarmless(const std::vector<HostileRun>& rows) {
    const std::string quoted = Json(hostile).dump();
    const Workspace workspace;
    for (const HostileRun& row : rows) {
        SCOPED_TRACE(row.what);
        for (const auto& [name, content] : row.files)
            workspace.write(name, withText(content, quoted.substr(1, quoted.size() - 2)));
        std::vector<std::string> arguments;
        for (const std::string& argument : row.arguments)
            arguments.push_back(withText(argument, hostileBytes));
        const Outcome outcome = workspace.run(arguments);
        EXPECT_EQ(actingPart(outcome.out), "") << outcome.out;
        EXPECT_THAT(outcome.out, testing::HasSubstr("a\\u001b[31mb\\r\\n")) << "the text is not told";
        EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), row.lines) << outcome.out;
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.err, "");
    }
}

/// A row for a document that has one member more than it needs.
HostileRun withMember(const std::string& what, const std::string& member, int lines = 1) {
    return {what,
            {{"a.json", R"({"openapi": "3.1.0", "info": {"title": "t", "version": "1"}, "paths": {}, )" +
                            member + "}"}},
            {"lint", "a.json"},
            lines};
}

HostileRun withSchema(const std::string& what, const std::string& members, int lines = 1) {
    return withMember(what, R"("components": {"schemas": {"a": {)" + members + "}}}", lines);
}

TEST(HostileMessages, areHarmlessWithTextsOfDocuments) {
    expectHarmless({
        withMember("a reference", R"("webhooks": {"a": {"$ref": "@"}})", 3),
        withSchema("a format, with the advice behind it", R"("type": "string", "format": "@")", 7),
        withSchema("a type", R"("type": "@")"),
        withSchema("a dialect", R"("$schema": "@")", 2),
        withMember("a location",
                   R"("components": {"parameters": {"a": {"name": "n", "in": "@", "schema": {}}}})"),
        withMember(
            "a style",
            R"("components": {"parameters": {"a": {"name": "n", "in": "query", "style": "@", "schema": {}}}})",
            2),
        withMember("a scheme", R"("components": {"securitySchemes": {"a": {"type": "@"}}})"),
        withMember("a place of a key",
                   R"("components": {"securitySchemes": {"a": {"type": "apiKey", "name": "n", "in": "@"}}})"),
    });
}

HostileRun withSection(const std::string& what, const std::string& command, const std::string& section,
                       int lines = 1) {
    HostileRun row{
        what,
        {{"c.json", R"({"version": "1.0", "commands": {")" + command + R"(": )" + section + "}}"},
         {"a.json", R"({"openapi": "3.1.0", "info": {"title": "t", "version": "1"}, "paths": {}})"}},
        {command, "--config", "c.json", "a.json"},
        lines};
    if (command == "diff")
        row.arguments.push_back("a.json");
    return row;
}

TEST(HostileMessages, areHarmlessWithTextsOfConfigurations) {
    expectHarmless({
        {"a version", {{"c.json", R"({"version": "@"})"}}, {"lint", "--config", "c.json", "a.json"}},
        {"a type of a format",
         {{"c.json", R"({"version": "1.0", "openapi": {"custom_formats": [{"name": "n", "type": "@"}]}})"}},
         {"lint", "--config", "c.json", "a.json"}},
        withSection("a rule", "lint", R"({"rules": {"@": "error"}})", 2),
        withSection("a ruleset", "lint", R"({"extends": ["@"], "rules": {"a": "error"}})", 3),
        withSection("a naming convention", "lint", R"({"rules": {"parameter-naming": ["error", "@"]}})", 2),
        withSection("a pattern", "lint", R"({"rules": {"id-defined": ["error", {"pattern": "(@"}]}})", 2),
        withSection("a file of words", "lint",
                    R"({"rules": {"spell-check": ["error", {"word_files": ["@"]}]}})", 2),
        withSection("a base", "format", R"({"extends": "@"})"),
        withSection("a file format", "format", R"({"openapi": {"format": "@"}})"),
        withSection("a kind of object", "format", R"({"openapi": {"property_order": {"@": "sorted"}}})"),
        withSection("a classification", "diff", R"({"extends": ["@"]})"),
    });
}

TEST(HostileMessages, areHarmlessWithTextsOfTheCommandLine) {
    const std::map<std::string, std::string> files = {
        {"a.json", R"({"openapi": "3.1.0", "info": {"title": "t", "version": "1"}, "paths": {}})"}};
    expectHarmless({
        {"a command", files, {"@"}},
        {"an argument", files, {"lint", "a.json", "--@"}},
        {"a file", files, {"lint", "@"}},
        {"a file of that extension", files, {"lint", "@.json"}},
        {"a configuration", files, {"lint", "a.json", "--config", "@.yaml"}},
        {"a lint report", files, {"lint", "--formatter", "@", "a.json"}},
        {"a diff report", files, {"diff", "--report", "@", "a.json", "a.json"}},
        {"a format of a report", files, {"diff", "--formatter", "@", "a.json", "a.json"}},
        {"an output", files, {"format", "a.json", "--output", "@"}},
        {"an output in a folder that is not there", files, {"format", "a.json", "--output", "b/@.json"}},
        {"a generator", files, {"generate", "@"}},
        {"a generator's document", files, {"generate", "server", "go", "@.json", "-o", "out"}},
        {"a generator's configuration",
         files,
         {"generate", "data", "a.json", "-o", "o", "-p", "/", "-c", "@.json"}},
        {"a locale file", files, {"generate", "doc", "html", "a.json", "-o", "out", "--i18n", "de=@.json"}},
        {"a text of a locale file",
         {{"a.json", R"({"@": 1})"}},
         {"generate", "doc", "html", "a.json", "-o", "out", "--i18n", "de=a.json"}},
        {"a text of a locale file that is there",
         {{"a.json", R"({"@": 1})"},
          {"b.json", R"({"openapi": "3.1.0", "info": {"title": "t", "version": "1"}, "paths": {}})"}},
         {"i18n", "b.json", "--output", "a.json"}},
        {"a locale file's path", files, {"i18n", "a.json", "--output", "@"}},
        {"a library", files, {"license", "--library", "@"}},
    });
}

} // namespace
} // namespace specloom::tests
