#include "openapi_diff/formatters/utils.h"

#include "foundation/case_style.h"
#include "foundation/printable.h"
#include "openapi/shape.h"
#include "reporting/place.h"

#include <algorithm> // std::ranges::transform
#include <array>     // std::array

#include <fmt/format.h>

namespace specloom::openapi_diff {
namespace {

struct MetadataFieldRow {
    MetadataField field;
    MetadataFieldName name;
};
constexpr MetadataFieldRow metadataFieldTable[] = {
    {MetadataField::Title, {"title", "title"}},
    {MetadataField::Summary, {"summary", "summary"}},
    {MetadataField::Description, {"description", "description"}},
    {MetadataField::TermsOfService, {"termsOfService", "terms of service"}},
    {MetadataField::Contact, {"contact", "contact"}},
    {MetadataField::License, {"license", "license"}},
};

} // namespace

std::string_view nodeKindText(const openapi::Node& node) {
    static const auto texts = [] {
        std::array<std::string, openapi::objectKindCount> names;
        std::ranges::transform(openapi::objectShapes, names.begin(), toSnakeCase,
                               &openapi::ObjectShape::name);
        return names;
    }();
    if (node.type() == openapi::NodeType::PathItem && node.parent() == node.root())
        return "webhook";
    return texts.at(static_cast<std::size_t>(openapi::kindOf(node.type())));
}

std::string changeText(const Change& change) {
    const std::string_view target = nodeKindText(*change.node);
    const std::string name = printable(change.name);
    switch (change.kind) {
    case ChangeKind::ExtensionAdded:
    case ChangeKind::ExtensionRemoved:
    case ChangeKind::ExtensionModified:
        return fmt::format("{}: {}", target, name);
    case ChangeKind::KeyAdded:
    case ChangeKind::KeyRemoved:
    case ChangeKind::KeyModified:
        return fmt::format("{}: {} {}", target, configKeyText(change.key), name);
    case ChangeKind::ElementAdded:
    case ChangeKind::ElementRemoved:
    case ChangeKind::ElementModified:
        return fmt::format("{}: {} {}", target, configKeyText(change.key), change.index);
    default:
        return fmt::format("{}: {}", target, configKeyText(change.key));
    }
}

std::string changeLine(const Change& change, std::string_view format) {
    return fmt::format(fmt::runtime(format), reporting::printedFile(change.file),
                       reporting::printedLine(change.pos), reporting::printedColumn(change.pos),
                       changeLevelText(change.level));
}

std::vector<MetadataFieldName> metadataFieldNames(const ChangelogReport& report) {
    std::vector<MetadataFieldName> names;
    for (const MetadataFieldRow& row : metadataFieldTable)
        if (report.hasMetadataField(row.field))
            names.push_back(row.name);
    return names;
}

} // namespace specloom::openapi_diff
