#pragma once

#include "code_morph_typescript/source_file.h"
#include "openapi_generator/part.h"

namespace specloom::openapi_generator::client_fetch {

/// What users of the client import: all of the other modules that is meant for them.
class IndexFile final : public Part {
  public:
    explicit IndexFile(code_morph::typescript::SourceFile& file) noexcept : file_(&file) {}
    void generateCode() override;

  private:
    code_morph::typescript::SourceFile* file_;
};

/// What the functions of the client call. It is the same for all documents.
class UtilsFile final : public Part {
  public:
    explicit UtilsFile(code_morph::typescript::SourceFile& file) noexcept : file_(&file) {}
    void generateCode() override;

  private:
    code_morph::typescript::SourceFile* file_;
};

} // namespace specloom::openapi_generator::client_fetch
