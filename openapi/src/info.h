#pragma once

#include "openapi/contact.h"
#include "openapi/license.h"

namespace specloom::openapi {

/// Info Object (OpenAPI 3.1.0, section 4.8.2).
class Info final : public Node {
  public:
    explicit Info(Node* parent) : Node(parent, NodeType::Info) {}

    /// "New API" until it is set.
    [[nodiscard]] std::string_view title() const { return title_.view(); }
    void setTitle(Text title) { title_ = std::move(title); }
    [[nodiscard]] std::optional<std::string_view> summary() const { return summary_.get(); }
    void setSummary(Text summary) { summary_ = std::move(summary); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }
    [[nodiscard]] std::optional<std::string_view> termsOfService() const { return termsOfService_.get(); }
    void setTermsOfService(Text termsOfService) { termsOfService_ = std::move(termsOfService); }
    /// "0.1.0" until it is set.
    [[nodiscard]] std::string_view version() const { return version_.view(); }
    void setVersion(Text version) { version_ = std::move(version); }

    /// Null when there is none.
    [[nodiscard]] const Contact* contact() const { return contact_.get(); }
    [[nodiscard]] Contact* contact() { return contact_.get(); }
    /// Throws std::runtime_error "Contact already exists".
    Contact* createContact();

    /// Null when there is none.
    [[nodiscard]] const License* license() const { return license_.get(); }
    [[nodiscard]] License* license() { return license_.get(); }
    /// Throws std::runtime_error "License already exists".
    License* createLicense(Text name);

  private:
    Text title_ = Text::borrow("New API");
    Text summary_;
    Text description_;
    Text termsOfService_;
    std::unique_ptr<Contact> contact_;
    std::unique_ptr<License> license_;
    Text version_ = Text::borrow("0.1.0");
};

} // namespace specloom::openapi
