#include "bench/event_recorder.h"

#include "jv/yaml_quoting.h"

#include <stdexcept> // std::runtime_error

namespace specloom::bench {

namespace {

[[nodiscard]] yaml_scalar_style_t styleOf(const jv::JV& string) {
    if (string.isPlainScalar())
        return string.text().empty() ? YAML_PLAIN_SCALAR_STYLE : YAML_ANY_SCALAR_STYLE;
    return jv::needsDoubleQuotes(string.text()) ? YAML_DOUBLE_QUOTED_SCALAR_STYLE : YAML_ANY_SCALAR_STYLE;
}

} // namespace

EventRecording::EventRecording(const jv::JVDocument& document) {
    struct Step {
        const jv::JV* value;
        std::string_view key;
        enum { Value, Member, EndArray, EndObject } kind;
    };
    std::vector<Step> open{{document.root(), {}, Step::Value}};
    while (!open.empty()) {
        const Step step = open.back();
        open.pop_back();
        if (step.kind == Step::EndArray || step.kind == Step::EndObject) {
            events_.push_back(
                {step.kind == Step::EndArray ? YAML_SEQUENCE_END_EVENT : YAML_MAPPING_END_EVENT});
            continue;
        }
        if (step.kind == Step::Member)
            events_.push_back({YAML_SCALAR_EVENT, YAML_ANY_SCALAR_STYLE, step.key});
        record(*step.value);
        if (step.value->isArray()) {
            open.push_back({step.value, {}, Step::EndArray});
            const auto elements = step.value->elements();
            for (auto element = elements.rbegin(); element != elements.rend(); ++element)
                open.push_back({*element, {}, Step::Value});
        } else if (step.value->isObject()) {
            open.push_back({step.value, {}, Step::EndObject});
            const std::vector<jv::Member> members = document.orderedMembers(step.value);
            for (auto member = members.rbegin(); member != members.rend(); ++member)
                open.push_back({member->value, member->key, Step::Member});
        }
    }
}

void EventRecording::record(const jv::JV& value) {
    switch (value.kind()) {
    case jv::Kind::Null:
        events_.push_back({YAML_SCALAR_EVENT, YAML_PLAIN_SCALAR_STYLE, "null"});
        break;
    case jv::Kind::Boolean:
        events_.push_back({YAML_SCALAR_EVENT, YAML_PLAIN_SCALAR_STYLE, value.boolean() ? "true" : "false"});
        break;
    case jv::Kind::Number:
        events_.push_back(
            {YAML_SCALAR_EVENT, YAML_PLAIN_SCALAR_STYLE, numbers_.emplace_back(value.number().toString())});
        break;
    case jv::Kind::String:
        events_.push_back({YAML_SCALAR_EVENT, styleOf(value), value.text()});
        break;
    case jv::Kind::Array:
        events_.push_back({YAML_SEQUENCE_START_EVENT});
        break;
    case jv::Kind::Object:
        events_.push_back({YAML_MAPPING_START_EVENT});
        break;
    }
}

bool EventRecording::initialize(yaml_event_t& out, const Event& event) {
    switch (event.type) {
    case YAML_SEQUENCE_START_EVENT:
        return yaml_sequence_start_event_initialize(&out, nullptr, nullptr, 1, YAML_BLOCK_SEQUENCE_STYLE) !=
               0;
    case YAML_SEQUENCE_END_EVENT:
        return yaml_sequence_end_event_initialize(&out) != 0;
    case YAML_MAPPING_START_EVENT:
        return yaml_mapping_start_event_initialize(&out, nullptr, nullptr, 1, YAML_BLOCK_MAPPING_STYLE) != 0;
    case YAML_MAPPING_END_EVENT:
        return yaml_mapping_end_event_initialize(&out) != 0;
    default: {
        const auto* bytes = reinterpret_cast<const yaml_char_t*>(event.text.empty() ? "" : event.text.data());
        return yaml_scalar_event_initialize(&out, nullptr, nullptr, bytes,
                                            static_cast<int>(event.text.size()), 1, 1, event.style) != 0;
    }
    }
}

std::string EventRecording::replay() const {
    std::string output;
    yaml_emitter_t emitter;
    if (yaml_emitter_initialize(&emitter) == 0)
        throw std::runtime_error("libyaml has no memory");
    const auto append = [](void* data, unsigned char* buffer, std::size_t size) {
        static_cast<std::string*>(data)->append(reinterpret_cast<const char*>(buffer), size);
        return 1;
    };
    yaml_emitter_set_indent(&emitter, 2);
    yaml_emitter_set_output(&emitter, append, &output);
    yaml_emitter_set_unicode(&emitter, 1);
    yaml_emitter_set_width(&emitter, -1);

    yaml_event_t event;
    bool good = yaml_stream_start_event_initialize(&event, YAML_UTF8_ENCODING) != 0 &&
                yaml_emitter_emit(&emitter, &event) != 0 &&
                yaml_document_start_event_initialize(&event, nullptr, nullptr, nullptr, 1) != 0 &&
                yaml_emitter_emit(&emitter, &event) != 0;
    for (const Event& recorded : events_)
        good = good && initialize(event, recorded) && yaml_emitter_emit(&emitter, &event) != 0;
    good = good && yaml_document_end_event_initialize(&event, 1) != 0 &&
           yaml_emitter_emit(&emitter, &event) != 0 && yaml_stream_end_event_initialize(&event) != 0 &&
           yaml_emitter_emit(&emitter, &event) != 0;
    yaml_emitter_delete(&emitter);
    if (!good)
        throw std::runtime_error("libyaml refuses an event");
    return output;
}

} // namespace specloom::bench
