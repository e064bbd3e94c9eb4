#include "bench/yaml_peer.h"

#include <yaml.h>

namespace specloom::bench {

std::size_t countYamlEvents(std::string_view text) {
    yaml_parser_t parser;
    if (yaml_parser_initialize(&parser) == 0)
        return 0;
    yaml_parser_set_input_string(&parser, reinterpret_cast<const unsigned char*>(text.data()), text.size());
    std::size_t count = 0;
    for (bool goOn = true; goOn;) {
        yaml_event_t event;
        if (yaml_parser_parse(&parser, &event) == 0) {
            count = 0;
            break;
        }
        ++count;
        goOn = event.type != YAML_STREAM_END_EVENT;
        yaml_event_delete(&event);
    }
    yaml_parser_delete(&parser);
    return count;
}

} // namespace specloom::bench
