#include "jv/yaml_marks.h"

#include "jv/yaml_event_source.h"

#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

namespace specloom::jv {

namespace {

[[nodiscard]] YamlMark markOf(const yaml_mark_t& mark) noexcept {
    return {mark.index, mark.line, mark.column};
}

/// Nothing for an event that makes no value.
[[nodiscard]] std::optional<YamlEventMarks> marksOf(const yaml_event_t& event) noexcept {
    using Kind = YamlEventMarks::Kind;
    const auto made = [&](Kind kind, bool isFlow = false, bool isBlockScalar = false) {
        return YamlEventMarks{kind, isFlow, isBlockScalar, markOf(event.start_mark), markOf(event.end_mark)};
    };
    switch (event.type) {
    case YAML_SCALAR_EVENT:
        return made(Kind::Scalar, false,
                    event.data.scalar.style == YAML_LITERAL_SCALAR_STYLE ||
                        event.data.scalar.style == YAML_FOLDED_SCALAR_STYLE);
    case YAML_ALIAS_EVENT:
        return made(Kind::Alias);
    case YAML_SEQUENCE_START_EVENT:
        return made(Kind::SequenceStart, event.data.sequence_start.style == YAML_FLOW_SEQUENCE_STYLE);
    case YAML_MAPPING_START_EVENT:
        return made(Kind::MappingStart, event.data.mapping_start.style == YAML_FLOW_MAPPING_STYLE);
    case YAML_SEQUENCE_END_EVENT:
        return made(Kind::SequenceEnd);
    case YAML_MAPPING_END_EVENT:
        return made(Kind::MappingEnd);
    default:
        return std::nullopt;
    }
}

} // namespace

void visitYamlMarks(std::string_view text, const std::function<bool(const YamlEventMarks&)>& visit) {
    YamlEventSource source(text);
    try {
        while (true) {
            const yaml_event_t& event = source.next();
            if (event.type == YAML_STREAM_END_EVENT)
                return;
            if (const std::optional<YamlEventMarks> marks = marksOf(event); marks && !visit(*marks))
                return;
        }
    } catch (const std::runtime_error&) { // no YAML
    }
}

} // namespace specloom::jv
