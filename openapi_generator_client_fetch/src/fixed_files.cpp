#include "openapi_generator_client_fetch/fixed_files.h"

#include "foundation/strings.h"
#include "openapi_generator_client_fetch/fetch_client_text.h"

namespace specloom::openapi_generator::client_fetch {

void IndexFile::generateCode() {
    file_->addExportAll("./types");
    file_->addExportAll("./actions");
    for (const std::string_view name : {"init", "setAuthCookie", "APIClientErrorKind", "APIClientError"})
        file_->addExport("./utils", name);
}

void UtilsFile::generateCode() {
    // The blanks belong to the generated text; the embedded one is without them to be read with ease.
    file_->setText('\n' + indentLines(fetchClientText("utils.ts"), 6) + '\n');
}

} // namespace specloom::openapi_generator::client_fetch
