#pragma once

#include "openapi_generator_server_spring/signature.h"
#include "templating/forms.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

// The methods of generated classes, one for each operation of a group.
namespace specloom::openapi_generator::server_spring {

/// What the methods of a class share.
struct MethodScope {
    Context& context;
    Signatures& signatures;
    code_morph::java::SourceFile& file;
};

/// A method, filled from a template of its own.
class Method {
  public:
    Method(const Method&) = delete;
    Method& operator=(const Method&) = delete;
    virtual ~Method() = default;

    /// Takes what it needs from the document, and imports that into the file.
    virtual void collectData();
    /// Its text.
    [[nodiscard]] std::string generateCode() const;

    [[nodiscard]] const openapi::OperationRef& operation() const noexcept { return ref_; }
    /// Empty for an operation that could not be named, and before collectData().
    [[nodiscard]] const std::string& methodName() const noexcept { return methodName_; }

  protected:
    /// `kind` is what the method is called where it could not be named, `prefix` what its name begins with.
    Method(const MethodScope& scope, const openapi::OperationRef& ref, std::string_view kind,
           std::string_view prefix, std::string_view templateName)
        : scope_(scope), ref_(ref), kind_(kind), prefix_(prefix), templateName_(templateName) {}

    [[nodiscard]] const MethodScope& scope() const noexcept { return scope_; }
    /// Adds what the template asks for beside the name.
    virtual void fill(templating::Texts& texts) const = 0;

  private:
    MethodScope scope_;
    openapi::OperationRef ref_;
    std::string_view kind_;
    std::string_view prefix_;
    std::string_view templateName_;
    std::string methodName_;
};

/// A method that takes and gives back what its operation does.
class OperationMethod : public Method {
  public:
    void collectData() override;

  protected:
    using Method::Method;

    [[nodiscard]] const Signature& signature() const noexcept { return *signature_; }
    void fill(templating::Texts& texts) const override;

  private:
    const Signature* signature_ = nullptr; ///< null before collectData()
};

/// Answers requests, by the method of the service.
class ControllerMethod final : public OperationMethod {
  public:
    ControllerMethod(const MethodScope& scope, const openapi::OperationRef& ref)
        : OperationMethod(scope, ref, "Controller method", "handle_", "controller_method.jinja") {}
    void collectData() override;

  protected:
    void fill(templating::Texts& texts) const override;
};

class ControllerTestMethod final : public Method {
  public:
    ControllerTestMethod(const MethodScope& scope, const openapi::OperationRef& ref)
        : Method(scope, ref, "Controller test method", "test_", "controller_test_method.jinja") {}
    void collectData() override;

  protected:
    void fill(templating::Texts& texts) const override;
};

class ServiceInterfaceMethod final : public OperationMethod {
  public:
    ServiceInterfaceMethod(const MethodScope& scope, const openapi::OperationRef& ref)
        : OperationMethod(scope, ref, "Service interface method", "", "service_interface_method.jinja") {}
};

/// Gives back a fixed value.
class ServiceClassMethod final : public OperationMethod {
  public:
    ServiceClassMethod(const MethodScope& scope, const openapi::OperationRef& ref)
        : OperationMethod(scope, ref, "Service class method", "", "service_class_method.jinja") {}

  protected:
    void fill(templating::Texts& texts) const override;
};

using Methods = std::vector<std::unique_ptr<Method>>;

/// A method of that kind for each operation.
template <typename Kind>
[[nodiscard]] Methods methodsOf(const MethodScope& scope,
                                const std::vector<openapi::OperationRef>& operations) {
    Methods methods;
    for (const openapi::OperationRef& ref : operations)
        methods.push_back(std::make_unique<Kind>(scope, ref));
    return methods;
}

} // namespace specloom::openapi_generator::server_spring
