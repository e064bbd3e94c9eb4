#include "source_edit/layout.h"

#include "foundation/unreachable.h"

namespace specloom::source_edit {

Layouts findLayouts(std::string_view text, jv::DocumentFormat format,
                    std::span<const jv::JV* const> containers) {
    switch (format) {
    case jv::DocumentFormat::Json:
        return findJsonLayouts(text, containers);
    case jv::DocumentFormat::Yaml:
        return findYamlLayouts(text, containers);
    }
    SPECLOOM_UNREACHABLE("format of a document");
}

} // namespace specloom::source_edit
