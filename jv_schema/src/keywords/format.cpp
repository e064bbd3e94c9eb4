#include "jv_schema/keywords/format.h"

#include "foundation/validators/validators.h"
#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"

#include <array> // std::array

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

using Validator = bool (*)(std::string_view) noexcept;

struct FormatEntry {
    std::string_view name;
    std::uint8_t drafts;
    Validator validator;
};

using namespace drafts;

// Not decided: "idn-email", "idn-hostname", "iri" and "iri-reference".
constexpr std::array formats{
    FormatEntry{"date", from7, isDate},
    FormatEntry{"date-time", all, isDateTime},
    FormatEntry{"duration", from2019, isDuration},
    FormatEntry{"email", all, isEmail},
    FormatEntry{"hostname", all, isHostname},
    FormatEntry{"ipv4", all, isIPv4},
    FormatEntry{"ipv6", all, isIPv6},
    FormatEntry{"json-pointer", from6, isJSONPointer},
    FormatEntry{"regex", from7, isRegex},
    FormatEntry{"relative-json-pointer", from7, isRelativeJSONPointer},
    FormatEntry{"time", from7, isTime},
    FormatEntry{"uri", all, isURI},
    FormatEntry{"uri-reference", from6, isURIReference},
    FormatEntry{"uri-template", from6, isURITemplate},
    FormatEntry{"uuid", from2019, isUUID},
};

class FormatKeyword : public Keyword {
  public:
    FormatKeyword(const Site& site, const FormatEntry& format)
        : Keyword(site.place, site.keyword, only(Kind::String)), format_(format) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        if (format_.validator(instance.text()))
            return true;
        return evaluation.fail(
            *this, [&] { return fmt::format(message::format, quoted(format_.name), described(instance)); });
    }

  private:
    const FormatEntry& format_;
};

} // namespace

std::unique_ptr<Keyword> makeFormat(const Site& site) {
    site.require(Kind::String);
    if (!site.compiler.assertsFormats() && !site.dialect().has(Vocabulary::FormatAssertion))
        return nullptr;
    for (const FormatEntry& format : formats) {
        if (format.name == site.value.text() && site.dialect().isOneOf(format.drafts))
            return std::make_unique<FormatKeyword>(site, format);
    }
    return nullptr;
}

} // namespace specloom::jv::schema
