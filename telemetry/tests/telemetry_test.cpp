#include "telemetry/telemetry.h"
#include "test_support/temporary_folder.h"

#include <filesystem> // std::filesystem
#include <fstream>    // std::ifstream
#include <stdexcept>  // std::runtime_error
#include <string>     // std::string, std::getline
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace specloom::telemetry {
namespace {

constexpr const char* noParent = "0000000000000000";

struct Recorded {
    std::string name, trace, id, parent, library;
};

/// The spans of an exporter's file, in its order: that in which they ended.
std::vector<Recorded> readSpans(const fs::path& path) {
    std::vector<Recorded> spans;
    std::ifstream stream(path);
    for (std::string line; std::getline(stream, line);) {
        const std::size_t colon = line.find(": ");
        if (line == "{")
            spans.emplace_back();
        if (colon == std::string::npos || spans.empty())
            continue;
        const std::string value = line.substr(colon + 2);
        if (line.starts_with("  name "))
            spans.back().name = value;
        else if (line.starts_with("  trace_id"))
            spans.back().trace = value;
        else if (line.starts_with("  span_id"))
            spans.back().id = value;
        else if (line.starts_with("  parent_span_id"))
            spans.back().parent = value;
        else if (line.starts_with("  instr-lib"))
            spans.back().library = value;
    }
    return spans;
}

class TelemetryTest : public testing::Test {
  protected:
    ~TelemetryTest() override { shutdownTelemetry(); }

    const test_support::TemporaryFolder folder;
    const std::string file = folder.at("spans");
};

TEST_F(TelemetryTest, aSpanInsideOfAnotherIsItsChild) {
    initTelemetry(file);
    {
        const Span outer("outer");
        { const Span inner("inner"); }
        { const Span second("second"); }
    }
    { const Span alone("alone"); }
    shutdownTelemetry();

    const std::vector<Recorded> spans = readSpans(file);
    ASSERT_EQ(spans.size(), 4U);
    EXPECT_EQ(spans[0].name, "inner");
    EXPECT_EQ(spans[1].name, "second");
    EXPECT_EQ(spans[2].name, "outer");
    EXPECT_EQ(spans[3].name, "alone");
    EXPECT_EQ(spans[0].parent, spans[2].id);
    EXPECT_EQ(spans[1].parent, spans[2].id);
    EXPECT_EQ(spans[1].trace, spans[2].trace);
    EXPECT_EQ(spans[2].parent, noParent);
    EXPECT_EQ(spans[3].parent, noParent);
    EXPECT_NE(spans[3].trace, spans[2].trace);
    EXPECT_EQ(spans[0].library, "specloom-1.13.0");
}

TEST_F(TelemetryTest, anExceptionEndsTheSpansThatItLeaves) {
    initTelemetry(file);
    try {
        const Span outer("outer");
        const Span inner("inner");
        throw std::runtime_error("leaves both");
    } catch (const std::runtime_error&) {
        const Span later("later");
    }
    shutdownTelemetry();
    const std::vector<Recorded> spans = readSpans(file);
    ASSERT_EQ(spans.size(), 3U);
    EXPECT_EQ(spans[0].name, "inner");
    EXPECT_EQ(spans[1].name, "outer");
    EXPECT_EQ(spans[2].name, "later");
    EXPECT_EQ(spans[2].parent, noParent);
}

TEST_F(TelemetryTest, withoutTelemetryNothingHappens) {
    { const Span before("before"); }
    shutdownTelemetry();
    initTelemetry(file);
    shutdownTelemetry();
    shutdownTelemetry();
    testing::internal::CaptureStderr();
    { const Span after("after"); }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(fs::exists(file));
    EXPECT_EQ(fs::file_size(file), 0U);
}

TEST_F(TelemetryTest, anExitWhileRecordingIsHarmless) {
    EXPECT_EXIT(
        {
            initTelemetry(file);
            { const Span span("finished"); }
            std::exit(7);
        },
        testing::ExitedWithCode(7), "^$");
    EXPECT_EQ(readSpans(file).size(), 1U);
}

} // namespace
} // namespace specloom::telemetry
