#include "openapi_generator/issue.h"

#include "foundation/printable.h"
#include "foundation/unreachable.h"

#include <algorithm>   // std::max, std::stable_sort
#include <cstdlib>     // std::getenv
#include <iostream>    // std::cout
#include <string_view> // std::string_view
#include <tuple>       // std::tuple

#include <fmt/color.h>
#include <unistd.h> // isatty

namespace specloom::openapi_generator {
namespace {

std::string_view labelOf(IssueSeverity severity) {
    switch (severity) {
    case IssueSeverity::Info:
        return "Info";
    case IssueSeverity::Warning:
        return "Warning";
    case IssueSeverity::Error:
        return "Error";
    case IssueSeverity::Fatal:
        return "Fatal";
    }
    SPECLOOM_UNREACHABLE("no severity of an issue");
}

fmt::terminal_color colourOf(IssueSeverity severity) {
    switch (severity) {
    case IssueSeverity::Info:
        return fmt::terminal_color::white;
    case IssueSeverity::Warning:
        return fmt::terminal_color::yellow;
    case IssueSeverity::Error:
    case IssueSeverity::Fatal:
        return fmt::terminal_color::red;
    }
    SPECLOOM_UNREACHABLE("no severity of an issue");
}

std::string placeOf(const Issue& issue) {
    return fmt::format("{}:{}", issue.pos.line, issue.pos.column);
}

std::vector<const Issue*> sortedIssues(const std::vector<Issue>& issues) {
    std::vector<const Issue*> sorted;
    sorted.reserve(issues.size());
    for (const Issue& issue : issues)
        sorted.push_back(&issue);
    const auto key = [](const Issue* issue) {
        return std::tuple(issue->pos.line, issue->pos.column, issue->severity);
    };
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](const Issue* a, const Issue* b) { return key(a) < key(b); });
    return sorted;
}

bool isColourWanted() {
    const char* const noColour = std::getenv("NO_COLOR");
    return (noColour == nullptr || *noColour == '\0') && isatty(STDOUT_FILENO) == 1;
}

} // namespace

void reportIssues(const std::vector<Issue>& issues, std::ostream& out, bool isColoured) {
    std::size_t placeWidth = 0;
    std::size_t labelWidth = 0;
    for (const Issue& issue : issues) {
        placeWidth = std::max(placeWidth, placeOf(issue).size());
        labelWidth = std::max(labelWidth, labelOf(issue.severity).size());
    }
    for (const Issue* issue : sortedIssues(issues)) {
        const std::string line = fmt::format("{:{}s} {:{}s} {}\n", placeOf(*issue), placeWidth,
                                             labelOf(issue->severity), labelWidth, printable(issue->message));
        out << (isColoured ? fmt::format(fmt::fg(colourOf(issue->severity)), "{}", line) : line);
    }
}

void reportIssues(const std::vector<Issue>& issues) {
    reportIssues(issues, std::cout, isColourWanted());
}

} // namespace specloom::openapi_generator
