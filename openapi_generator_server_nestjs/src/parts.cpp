#include "openapi_generator_server_nestjs/parts.h"

namespace specloom::openapi_generator::server_nestjs {

void Controller::collectData() {}

void Controller::generateCode() {}

void ModuleFile::collectData() {}

void ModuleFile::generateCode() {}

} // namespace specloom::openapi_generator::server_nestjs
