#include "templating/templating.h"

#include <filesystem> // std::filesystem::path
#include <stdexcept>  // std::runtime_error

#include <inja/inja.hpp>

namespace specloom::templating {
namespace {

void configure(inja::Environment& environment) {
    environment.set_trim_blocks(true);
    environment.set_lstrip_blocks(true);
    // An empty sign would turn every line into a statement; this one stands in no text.
    environment.set_line_statement("\x01line");
    environment.set_search_included_templates_in_files(false);
}

} // namespace

std::string render(std::string_view text, const nlohmann::json& data) {
    inja::Environment environment;
    configure(environment);
    return environment.render(text, data);
}

std::string renderNamed(std::string_view name, const TemplateSource& source, const nlohmann::json& data) {
    inja::Environment environment;
    configure(environment);
    const auto find = [&](const std::filesystem::path& /*folder*/, const std::string& wanted) {
        const std::string_view text = source(wanted);
        if (text.data() == nullptr)
            throw std::runtime_error("Template not found: " + wanted);
        return environment.parse(text);
    };
    environment.set_include_callback(find);
    return environment.render(find({}, std::string(name)), data);
}

} // namespace specloom::templating
