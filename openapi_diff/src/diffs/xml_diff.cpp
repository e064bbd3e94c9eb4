#include "openapi_diff/diffs/xml_diff.h"

namespace specloom::openapi_diff {

void XMLDiff::diff(const openapi::XML* source, const openapi::XML* destination, DiffContext& context) const {
    using openapi::XML;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(XMLName, source, destination, &XML::name);
    context.field(XMLNamespace, source, destination, &XML::namespaceUri);
    context.field(XMLPrefix, source, destination, &XML::prefix);
    context.field(XMLAttribute, source, destination, &XML::attribute);
    context.field(XMLWrapped, source, destination, &XML::wrapped);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
