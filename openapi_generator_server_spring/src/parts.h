#pragma once

#include "openapi_generator/part.h"
#include "openapi_generator_server_spring/methods.h"
#include "templating/forms.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

// The classes of a generated server. Each part fills one file.
namespace specloom::openapi_generator::server_spring {

/// A class that is a template filled with data.
class Part : public openapi_generator::Part {
  public:
    void generateCode() override;

  protected:
    /// All outlive the part. `templateName` is one of the folder templates/.
    Part(Context& context, code_morph::java::SourceFile& file, std::string_view className,
         std::string_view templateName)
        : context_(&context), file_(&file), className_(className), templateName_(templateName) {}

    [[nodiscard]] Context& context() const noexcept { return *context_; }
    [[nodiscard]] code_morph::java::SourceFile& file() const noexcept { return *file_; }
    /// Without its package.
    [[nodiscard]] const std::string& className() const noexcept { return className_; }
    /// Adds what the template asks for beside the package, the name and the imports.
    virtual void fill(templating::Texts& /*texts*/) const {}

  private:
    Context* context_;
    code_morph::java::SourceFile* file_;
    std::string className_;
    std::string_view templateName_;
};

/// The class that is started.
class AppClass final : public Part {
  public:
    AppClass(Context& context, code_morph::java::SourceFile& file);
};

/// A class with a method for each operation of a group.
class OperationsClass : public Part {
  public:
    void collectData() override;

  protected:
    /// `kind` is what the class is called where two operations have one method.
    OperationsClass(Context& context, code_morph::java::SourceFile& file, std::string_view className,
                    std::string_view templateName, std::string_view kind, Methods methods)
        : Part(context, file, className, templateName), kind_(kind), methods_(std::move(methods)) {}

    [[nodiscard]] const Methods& methods() const noexcept { return methods_; }
    void fill(templating::Texts& texts) const override;

  private:
    std::string_view kind_;
    Methods methods_;
};

/// What the parts of a group share.
struct GroupScope {
    Context& context;
    Signatures& signatures;
    const Group& group;
    const std::vector<openapi::OperationRef>& operations;
};

class ServiceInterface final : public OperationsClass {
  public:
    ServiceInterface(const GroupScope& scope, code_morph::java::SourceFile& file);

  protected:
    void fill(templating::Texts& texts) const override;
};

/// The class that implements a service.
class ServiceClass final : public OperationsClass {
  public:
    ServiceClass(const GroupScope& scope, code_morph::java::SourceFile& file, std::string_view interfaceName);

  protected:
    void fill(templating::Texts& texts) const override;

  private:
    std::string interfaceName_;
};

class Controller final : public OperationsClass {
  public:
    Controller(const GroupScope& scope, code_morph::java::SourceFile& file, std::string_view interfaceName);

    void collectData() override;

  protected:
    void fill(templating::Texts& texts) const override;

  private:
    void checkConstants() const;

    Signatures* signatures_;
    std::string interfaceName_;
};

class ControllerTest final : public OperationsClass {
  public:
    ControllerTest(const GroupScope& scope, code_morph::java::SourceFile& file);
};

} // namespace specloom::openapi_generator::server_spring
