#include "openapi_generator_doc_html/project_files.h"

namespace specloom::openapi_generator::doc_html {

void PackageJson::collect(jv::JV& data) {
    data.setString("name", configuration().packageName);
    data.setString("version", configuration().packageVersion);
}

void AstroConfig::collect(jv::JV& data) {
    if (configuration().locales.empty())
        return;
    jv::JV* locales = data.setArray("locales");
    for (const std::string& locale : configuration().locales)
        locales->appendString(locale);
    data.setString("defaultLocale", *configuration().defaultLocale);
    data.setBoolean("prefixDefaultLocale", configuration().prefixDefaultLocale);
}

void I18nMiddleware::collect(jv::JV& data) {
    if (configuration().defaultLocale)
        data.setString("defaultLocale", *configuration().defaultLocale);
}

} // namespace specloom::openapi_generator::doc_html
