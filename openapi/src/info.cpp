#include "openapi/info.h"

namespace specloom::openapi {

Contact* Info::createContact() {
    if (contact_ != nullptr)
        throw std::runtime_error("Contact already exists");
    contact_ = std::make_unique<Contact>(this);
    return contact_.get();
}

License* Info::createLicense(Text name) {
    if (license_ != nullptr)
        throw std::runtime_error("License already exists");
    license_ = std::make_unique<License>(this, std::move(name));
    return license_.get();
}

} // namespace specloom::openapi
