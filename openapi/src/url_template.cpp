#include "openapi/url_template.h"

namespace specloom::openapi {

std::vector<std::string_view> templateNames(std::string_view url) {
    std::vector<std::string_view> names;
    std::size_t open = url.find('{');
    while (open != std::string_view::npos) {
        const std::size_t close = url.find('}', open);
        if (close == std::string_view::npos)
            break;
        names.push_back(url.substr(open + 1, close - open - 1));
        open = url.find('{', close);
    }
    return names;
}

} // namespace specloom::openapi
