#include "telemetry/telemetry.h"

#include "foundation/descriptor.h"
#include "foundation/file_system.h"
#include "foundation/output_buffer.h"

#include <memory>  // std::make_unique, std::shared_ptr
#include <ostream> // std::ostream
#include <string>  // std::string
#include <utility> // std::move

#include <fcntl.h>
#include <opentelemetry/exporters/ostream/span_exporter.h>
#include <opentelemetry/sdk/common/global_log_handler.h>
#include <opentelemetry/sdk/trace/simple_processor.h>
#include <opentelemetry/sdk/trace/tracer_provider.h>
#include <opentelemetry/trace/noop.h>
#include <opentelemetry/trace/provider.h>
#include <opentelemetry/trace/scope.h>
#include <opentelemetry/trace/tracer.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trace_api = opentelemetry::trace;
namespace trace_sdk = opentelemetry::sdk::trace;
namespace sdk_log = opentelemetry::sdk::common::internal_log;
namespace nostd = opentelemetry::nostd;

namespace specloom::telemetry {
namespace {

constexpr const char* libraryName = "specloom";
constexpr const char* libraryVersion = "1.13.0";

/// Opens the file and empties it, unless it is something else than a regular file with one name: the folder
/// may be of unknown origin, and a link in it lead anywhere.
Descriptor openEmpty(std::string_view fileName) {
    Descriptor file =
        openDescriptor(pathFromUtf8(fileName), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK, 0600);
    struct stat status {};
    const bool isSafe = file.isOpen() && fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode) &&
                        status.st_nlink == 1 && ftruncate(file.get(), 0) == 0;
    return isSafe ? std::move(file) : Descriptor();
}

/// What lives from initTelemetry() to shutdownTelemetry().
class Session {
  public:
    explicit Session(Descriptor file) : file_(std::move(file)) {
        // The library would report its own troubles on standard error, which is not for them.
        sdk_log::GlobalLogHandler::SetLogHandler(
            nostd::shared_ptr<sdk_log::LogHandler>(new sdk_log::NoopLogHandler));
        auto exporter = std::make_unique<opentelemetry::exporter::trace::OStreamSpanExporter>(stream_);
        auto processor = std::make_unique<trace_sdk::SimpleSpanProcessor>(std::move(exporter));
        provider_ = std::make_shared<trace_sdk::TracerProvider>(std::move(processor));
        trace_api::Provider::SetTracerProvider(nostd::shared_ptr<trace_api::TracerProvider>(
            std::shared_ptr<trace_api::TracerProvider>(provider_)));
        tracer_ = provider_->GetTracer(libraryName, libraryVersion);
    }

    ~Session() {
        tracer_ = nullptr;
        provider_->ForceFlush(); // Shutdown() alone leaves the stream's buffer as it is
        provider_->Shutdown();
        trace_api::Provider::SetTracerProvider(
            nostd::shared_ptr<trace_api::TracerProvider>(new trace_api::NoopTracerProvider));
    }

    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    nostd::shared_ptr<trace_api::Span> start(std::string_view name) {
        return tracer_->StartSpan(nostd::string_view(name.data(), name.size()));
    }

  private:
    Descriptor file_;
    OutputBuffer buffer_{file_.get()};
    std::ostream stream_{&buffer_}; // outlives the exporter, which refers to it
    std::shared_ptr<trace_sdk::TracerProvider> provider_;
    nostd::shared_ptr<trace_api::Tracer> tracer_;
};

std::unique_ptr<Session>& session() {
    // std::exit() may destroy a running session. The library's own global is touched first, because what is
    // constructed first is destroyed last and the session's destructor needs it.
    static std::unique_ptr<Session> current = [] {
        static_cast<void>(trace_api::Provider::GetTracerProvider());
        return nullptr;
    }();
    return current;
}

} // namespace

void initTelemetry(std::string_view fileName) {
    shutdownTelemetry(); // before the new one takes the global place that the old one clears
    Descriptor file = openEmpty(fileName);
    if (file.isOpen())
        session() = std::make_unique<Session>(std::move(file));
}

void shutdownTelemetry() {
    session() = nullptr;
}

struct Span::Running {
    explicit Running(nostd::shared_ptr<trace_api::Span> started) : span(std::move(started)), scope(span) {}
    nostd::shared_ptr<trace_api::Span> span;
    trace_api::Scope scope; // makes the span the active one; ends before the span does
};

Span::Span(std::string_view name) {
    if (session())
        running_ = std::make_unique<Running>(session()->start(name));
}

Span::~Span() = default;

} // namespace specloom::telemetry
