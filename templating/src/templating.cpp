#include "templating/templating.h"

#include <inja/inja.hpp>

namespace specloom::templating {

std::string render(std::string_view text, const nlohmann::json& data) {
    inja::Environment environment;
    environment.set_trim_blocks(true);
    environment.set_lstrip_blocks(true);
    // An empty sign would turn every line into a statement; this one stands in no text.
    environment.set_line_statement("\x01line");
    environment.set_search_included_templates_in_files(false);
    return environment.render(text, data);
}

} // namespace specloom::templating
