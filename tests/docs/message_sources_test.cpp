// Holds the sources to the rule of foundation/message.h: what an exception says is a constant, or comes from
// formatMessage(), which cleans what is foreign in it.

#include "tree.h"

#include <map>     // std::map
#include <regex>   // std::regex, on our own sources
#include <set>     // std::set
#include <string>  // std::string
#include <utility> // std::pair

#include <gtest/gtest.h>

namespace specloom::docs_tests {
namespace {

/// Arguments that the check cannot judge, each with its reason.
const std::set<std::pair<std::string, std::string>> judged = {
    {"jv_schema/src/evaluation.h", "reason.message"}, // becomes a result, and never leaves the module
    {"regex/src/syntax_error.h", "message"},          // of constants; quotes nothing
    {"number/src/number_literal.cpp", "numberLiteralError(literal.status)"}, // a table of constants
    {"number/src/parser.cpp", "numberLiteralError(5)"},                      // the same
    {"openapi/src/components.cpp", "takenText(section)"},                    // the same
    {"openapi/src/node_children.h", "taken"},                                // a constant of the caller
    {"openapi/src/reader/reader_context.cpp", "text"},                       // lines of messages
};

/// The sources of the program without comments, by their path from the root.
std::map<std::string, std::string> readCode() {
    const std::regex comment(R"re((//[^\n]*)|("(?:[^"\\\n]|\\.)*"))re");
    std::map<std::string, std::string> sources = readSources();
    for (auto& [path, text] : sources)
        text = std::regex_replace(text, comment, "$2");
    return sources;
}

/// From behind an opening bracket to the one that closes it.
std::string argumentsAt(const std::string& text, std::size_t begin) {
    int open = 1;
    bool quoted = false;
    for (std::size_t at = begin; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '"' && text[at - 1] != '\\')
            quoted = !quoted;
        if (quoted)
            continue;
        open += c == '(' || c == '{' ? 1 : c == ')' || c == '}' ? -1 : 0;
        if (open == 0)
            return text.substr(begin, at - begin);
    }
    return "no end";
}

TEST(MessageSources, makeEachExceptionOfAConstantOrOfCleanedArguments) {
    const std::map<std::string, std::string> sources = readCode();
    ASSERT_GT(sources.size(), 100u);
    std::map<std::string, std::set<std::string>> constants;
    const std::regex constant(R"(constexpr [^;={}()]*\b(\w+)(?:\[\])? =)");
    for (const auto& [path, text] : sources)
        for (std::sregex_iterator found(text.begin(), text.end(), constant), end; found != end; ++found)
            constants[path].insert((*found)[1]);

    const std::regex named(R"(message::\w+)"); // of a module's table of messages
    const std::regex made(R"(std::\w+_(?:error|argument|range)[({])");
    const std::regex literals(R"re(\s*("(?:[^"\\]|\\.)*"\s*)+)re");
    const std::regex composed(R"(\w+\.composed\(\))");
    std::set<std::pair<std::string, std::string>> met;
    std::size_t count = 0;
    for (const auto& [path, text] : sources)
        for (std::sregex_iterator found(text.begin(), text.end(), made), end; found != end; ++found) {
            const auto begin = static_cast<std::size_t>(found->position() + found->length());
            std::string argument = argumentsAt(text, begin);
            argument.erase(0, argument.find_first_not_of(" \n"));
            ++count;
            const std::string called = "formatMessage(";
            const bool formatted =
                argument.starts_with(called) &&
                called.size() + argumentsAt(argument, called.size()).size() + 1 == argument.size();
            if (formatted || std::regex_match(argument, literals) || std::regex_match(argument, composed) ||
                constants[path].contains(argument) || std::regex_match(argument, named))
                continue;
            met.insert({path, argument});
            EXPECT_TRUE(judged.contains({path, argument})) << path << ": " << argument;
        }
    EXPECT_GT(count, 100u);
    EXPECT_EQ(met, judged) << "what is not met any more goes";
}

TEST(MessageSources, giveExceptionsNoOtherWayToTakeAText) {
    const std::regex inherited(R"(using std::\w+_(error|argument|range)::)");
    const std::regex ownText(R"(: (public )?std::exception \{[^}]*std::string )");
    const std::regex anyFormat(R"(formatMessage\(\s*fmt::runtime)");
    const std::regex pathOfSystem(R"(\bfilesystem_error[({])");
    for (const auto& [path, text] : readCode()) {
        EXPECT_FALSE(std::regex_search(text, inherited)) << path;
        EXPECT_FALSE(std::regex_search(text, ownText)) << path;
        EXPECT_FALSE(std::regex_search(text, anyFormat)) << path;
        EXPECT_FALSE(std::regex_search(text, pathOfSystem)) << path;
    }
}

} // namespace
} // namespace specloom::docs_tests
