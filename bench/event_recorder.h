#pragma once

#include "jv/jv_document.h"

#include <deque>       // std::deque
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <yaml.h>

namespace specloom::bench {

/// The events that jv::YAMLWriter gives to libyaml for a document, kept for a bare emitter.
class EventRecording {
  public:
    /// `document` is not owned and must outlive this.
    explicit EventRecording(const jv::JVDocument& document);
    EventRecording(const EventRecording&) = delete;
    EventRecording& operator=(const EventRecording&) = delete;

    /// What libyaml's emitter makes of them when it is set up as jv::YAMLWriter does. Throws
    /// std::runtime_error when it refuses one.
    [[nodiscard]] std::string replay() const;

  private:
    struct Event {
        yaml_event_type_t type;
        yaml_scalar_style_t style = YAML_PLAIN_SCALAR_STYLE;
        std::string_view text = {};
    };

    void record(const jv::JV& value);
    [[nodiscard]] static bool initialize(yaml_event_t& out, const Event& event);

    std::vector<Event> events_;
    std::deque<std::string> numbers_; ///< texts that the document does not hold itself
};

} // namespace specloom::bench
