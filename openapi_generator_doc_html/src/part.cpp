#include "openapi_generator_doc_html/part.h"

namespace specloom::openapi_generator::doc_html {

void Part::collectData() {
    texts().enter(locale_);
    data_ = jv::JV::newObject();
    data_->setArray("imports");
    collect(*data_);
}

void Part::generateCode() {
    texts().enter(locale_);
    file_->setText(context_->templates.render(templateName_, *data_));
    data_.reset(); // which is about as large as the file
}

void Part::addImport(jv::JV& data, std::string_view name, std::string_view folder,
                     std::string_view file) const {
    jv::JV* import = data.get("imports")->appendObject();
    import->setString("name", name);
    import->setString("path", context_->importPath(folder, file, locale_));
}

} // namespace specloom::openapi_generator::doc_html
