#include "openapi_diff/differ.h"

#include "foundation/unreachable.h"
#include "openapi_diff/diff_context.h"
#include "openapi_diff/diffs/openapi_diff.h"
#include "openapi_diff/version_bump.h"
#include "telemetry/telemetry.h"

#include <string>  // std::string
#include <utility> // std::move

namespace specloom::openapi_diff {

Differ::Differ(std::ostream& stream) : stream_(stream), configuration_(Configuration::recommended()) {
    setReport(defaultReport);
    setFormatter(defaultFormat, defaultReport);
}

void Differ::setReport(std::string_view name) {
    report_ = createReport(name);
}

void Differ::setFormatter(std::string_view format, std::string_view report) {
    formatter_ = createFormatter(format, report, stream_);
}

Differ::Outcome Differ::run(const openapi::ReadResult& source, openapi::ReadResult& destination) {
    DiffContext context(configuration_, source, destination, *report_);
    {
        const telemetry::Span span("process");
        OpenAPIDiff().diff(&source.root(), &std::as_const(destination).root(), context);
    }
    const ChangeLevel bumped = bump(source, destination);
    const telemetry::Span span("format");
    formatter_->format(*report_);
    return {report_->level(), bumped};
}

/// Raises the version of the destination's tree, and tells by which level.
ChangeLevel Differ::bump(const openapi::ReadResult& source, openapi::ReadResult& destination) const {
    const ChangeLevel level = report_->level();
    if (!updateVersion_ || level == ChangeLevel::None)
        return ChangeLevel::None;
    if (level > ChangeLevel::Breaking)
        SPECLOOM_UNREACHABLE(nullptr);
    const telemetry::Span span("bump_version");
    openapi::Info& info = destination.root().info();
    const std::string version = bumpVersion(source.root().info().version(), info.version(), level);
    if (version == info.version())
        return ChangeLevel::None;
    info.setVersion(version);
    return level;
}

} // namespace specloom::openapi_diff
