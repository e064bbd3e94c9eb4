#include "openapi_diff/formatters/changelog_events.h"

#include "foundation/printable.h"
#include "reporting/place.h"

#include <fmt/format.h>

namespace specloom::openapi_diff {
namespace {

/// The one walk over a changelog, for all forms made of lines.
class EventWalk {
  public:
    EventWalk(const ChangelogReport& report, const EventFormats& formats, const TakeEvent& take)
        : report_(report), formats_(formats), take_(take) {}

    void run() {
        if (report_.metadata().level != ChangeLevel::None)
            tell(ChangelogEvent::MetadataChanged, report_.metadata());
        tellOperations(ChangelogEvent::OperationAdded, report_.added());
        tellOperations(ChangelogEvent::OperationRemoved, report_.removed());
        tellOperations(ChangelogEvent::OperationDeprecated, report_.deprecated());
        for (const ModifiedOperation& operation : report_.modified())
            tellModified(operation);
    }

  private:
    void tell(ChangelogEvent event, const ChangelogEntry& entry, std::string_view first = {},
              std::string_view second = {}) const {
        const std::string_view format = formats_[static_cast<std::size_t>(event)];
        if (format.empty())
            return;
        take_(entry, fmt::format(fmt::runtime(format), reporting::printedFile(entry.file),
                                 reporting::printedLine(entry.pos), reporting::printedColumn(entry.pos),
                                 changeLevelText(entry.level), printable(first), printable(second)));
    }

    void tellOperations(ChangelogEvent event, const std::vector<OperationChange>& operations) const {
        for (const OperationChange& operation : operations)
            tell(event, operation, operation.method, operation.path);
    }

    void tellParameters(ChangelogEvent event, const std::vector<ParameterChange>& parameters) const {
        for (const ParameterChange& parameter : parameters)
            tell(event, parameter, parameter.name, parameter.location);
    }

    void tellResponses(ChangelogEvent event, const std::vector<NamedChange>& responses) const {
        for (const NamedChange& response : responses)
            tell(event, response, response.name);
    }

    void tellModified(const ModifiedOperation& operation) const {
        tell(ChangelogEvent::OperationModified, operation, operation.method, operation.path);
        if (operation.summaryChanged || operation.descriptionChanged || operation.operationIdChanged)
            tell(ChangelogEvent::OperationMetadataChanged, operation.metadata);
        tellParameters(ChangelogEvent::ParameterAdded, operation.parameters.added);
        tellParameters(ChangelogEvent::ParameterRemoved, operation.parameters.removed);
        tellParameters(ChangelogEvent::ParameterModified, operation.parameters.modified);
        for (const auto* list : {&operation.requestBody.added, &operation.requestBody.removed,
                                 &operation.requestBody.modified}) // an operation has one request body
            if (!list->empty())
                tell(ChangelogEvent::RequestBodyChanged, list->front());
        tellResponses(ChangelogEvent::ResponseAdded, operation.responses.added);
        tellResponses(ChangelogEvent::ResponseRemoved, operation.responses.removed);
        tellResponses(ChangelogEvent::ResponseModified, operation.responses.modified);
        if (operation.securityChanged)
            tell(ChangelogEvent::SecurityChanged, operation.securityChange);
    }

    const ChangelogReport& report_;
    const EventFormats& formats_;
    const TakeEvent& take_;
};

} // namespace

void forEachEvent(const ChangelogReport& report, const EventFormats& formats, const TakeEvent& take) {
    EventWalk(report, formats, take).run();
}

} // namespace specloom::openapi_diff
