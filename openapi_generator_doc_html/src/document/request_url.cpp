#include "openapi_generator_doc_html/document/request_url.h"

#include "foundation/ascii.h"
#include "foundation/uri_template.h"
#include "openapi/media_type.h"
#include "openapi/openapi.h"
#include "openapi_generator_doc_html/document/json_text.h"

#include <algorithm> // std::min
#include <cstddef>   // std::size_t
#include <map>       // std::map
#include <set>       // std::set
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move, std::pair
#include <variant>   // std::get_if, std::holds_alternative, std::monostate

namespace specloom::openapi_generator::doc_html {

namespace {

using jv::JV;
using openapi::Parameter;
using openapi::ParameterLocation;
using openapi::ParameterStyle;

void appendEncoded(std::string& out, char c) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    (out += '%').append({digits[byte / 16], digits[byte % 16]});
}

/// A text as literals of a URI template are written; those of the brackets that a path may not hold (RFC
/// 3986, section 3.3) are encoded as well.
[[nodiscard]] std::string literalText(std::string_view text) {
    std::string literal;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool stays = ascii::isAlphanumeric(c) || (c == '%' && isPercentEncoded(text, i)) ||
                           std::string_view("!#$&'()*+,-./:;=?@_~").find(c) != std::string_view::npos;
        if (stays)
            literal += c;
        else
            appendEncoded(literal, c);
    }
    return literal;
}

/// A name as variables of a URI template are written (RFC 6570, section 2.3).
[[nodiscard]] std::string variableName(std::string_view name) {
    std::string variable;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        const bool isInnerDot = c == '.' && i > 0 && i + 1 < name.size() && name[i - 1] != '.';
        if (ascii::isAlphanumeric(c) || c == '_' || (isInnerDot && name[i + 1] != '.'))
            variable += c;
        else
            appendEncoded(variable, c);
    }
    return variable;
}

[[nodiscard]] std::string scalarText(const JV& value) {
    return value.isString() ? std::string(value.text()) : jsonText(value, JsonForm::Compact);
}

[[nodiscard]] bool isJsonContent(const Parameter& parameter) {
    return parameter.value().mode() == openapi::SchemaOrContent::Mode::Content &&
           parameter.value().mediaTypeName().find("json") != std::string_view::npos;
}

[[nodiscard]] ParameterStyle styleOf(const Parameter& parameter) {
    const bool isForm =
        parameter.location() == ParameterLocation::Query || parameter.location() == ParameterLocation::Cookie;
    return parameter.style().value_or(isForm ? ParameterStyle::Form : ParameterStyle::Simple);
}

[[nodiscard]] bool isExploded(const Parameter& parameter) {
    return parameter.explode().value_or(styleOf(parameter) == ParameterStyle::Form);
}

[[nodiscard]] UriTemplateList listOf(const JV& array) {
    UriTemplateList list;
    for (const JV* element : array.elements()) {
        if (!element->isNull())
            list.push_back(scalarText(*element));
    }
    return list;
}

/// Names of exploded pairs expand like literals, so they are encoded before.
[[nodiscard]] UriTemplatePairs pairsOf(const JV& object, bool isExplodedPair) {
    UriTemplatePairs pairs;
    for (const jv::Member member : object.members()) {
        if (!member.value->isNull())
            pairs.emplace_back(isExplodedPair ? variableName(member.key) : std::string(member.key),
                               scalarText(*member.value));
    }
    return pairs;
}

[[nodiscard]] UriTemplateValue templateValue(const ValuedParameter& valued) {
    const JV& value = *valued.value;
    if (isJsonContent(*valued.parameter))
        return jsonText(value, JsonForm::Compact);
    if (value.isNull())
        return {};
    if (value.isArray())
        return listOf(value);
    if (value.isObject())
        return pairsOf(value, isExploded(*valued.parameter));
    return scalarText(value);
}

[[nodiscard]] std::string joined(const UriTemplateList& list, char separator) {
    std::string text;
    for (const std::string& item : list)
        (text.empty() ? text : text += separator) += item;
    return text;
}

// ---- the path

class PathTemplate {
  public:
    explicit PathTemplate(const std::vector<ValuedParameter>& parameters) {
        for (const ValuedParameter& valued : parameters)
            parameters_.emplace(std::pair(valued.parameter->location(), valued.parameter->name()), &valued);
    }

    [[nodiscard]] std::string expand(std::string_view path) {
        while (!path.empty()) {
            const std::size_t open = path.find('{');
            const std::size_t close = open == std::string_view::npos ? open : path.find('}', open);
            if (close == std::string_view::npos)
                break;
            template_ += literalText(path.substr(0, open));
            addExpression(path.substr(open + 1, close - open - 1));
            path.remove_prefix(close + 1);
        }
        template_ += literalText(path);
        return UriTemplate(std::move(template_)).expand(variables_);
    }

    /// Whether the path has said a parameter of the query already.
    [[nodiscard]] bool hasSaid(const Parameter& parameter) const { return said_.contains(&parameter); }

  private:
    [[nodiscard]] const ValuedParameter* find(std::string_view name, ParameterLocation location) const {
        const auto found = parameters_.find(std::pair(location, name));
        return found == parameters_.end() ? nullptr : found->second;
    }

    void addExpression(std::string_view expression) {
        UriTemplateSyntax syntax;
        std::string written = "{" + std::string(expression) + "}";
        if (const ValuedParameter* valued = find(expression, ParameterLocation::Path)) {
            addVariable(*valued);
        } else if (!scanUriTemplate(written, &syntax)) {
            for (const UriTemplateVariable& variable : syntax.variables)
                setVariable(std::string_view(written).substr(variable.nameBegin,
                                                             variable.nameEnd - variable.nameBegin),
                            variable.prefix > 0);
            template_ += written;
        } else {
            template_ += literalText(expression);
        }
    }

    void addVariable(const ValuedParameter& valued) {
        const std::string name = variableName(valued.parameter->name());
        const ParameterStyle style = styleOf(*valued.parameter);
        template_ += '{';
        if (style == ParameterStyle::Label)
            template_ += '.';
        else if (style == ParameterStyle::Matrix)
            template_ += ';';
        template_.append(name).append(isExploded(*valued.parameter) ? "*}" : "}");
        setVariable(name, valued);
    }

    /// Of an expression that is written as RFC 6570 has it, which may say parameters of the query.
    void setVariable(std::string_view name, bool isScalar) {
        const ValuedParameter* valued = find(name, ParameterLocation::Path);
        if (valued == nullptr)
            valued = find(name, ParameterLocation::Query);
        if (valued == nullptr) {
            variables_.insert_or_assign(std::string(name), std::string(name));
        } else if (isScalar) {
            variables_.insert_or_assign(std::string(name), scalarText(*valued->value));
            said_.insert(valued->parameter);
        } else {
            setVariable(std::string(name), *valued);
        }
    }

    /// A path cannot do without its variables.
    void setVariable(const std::string& name, const ValuedParameter& valued) {
        UriTemplateValue value = templateValue(valued);
        const auto* list = std::get_if<UriTemplateList>(&value);
        const auto* pairs = std::get_if<UriTemplatePairs>(&value);
        if (std::holds_alternative<std::monostate>(value) || (list != nullptr && list->empty()) ||
            (pairs != nullptr && pairs->empty()))
            value = valued.parameter->location() == ParameterLocation::Path
                        ? UriTemplateValue(std::string(valued.parameter->name()))
                        : UriTemplateValue();
        variables_.insert_or_assign(name, std::move(value));
        said_.insert(valued.parameter);
    }

    std::map<std::pair<ParameterLocation, std::string_view>, const ValuedParameter*> parameters_;
    std::string template_;
    UriTemplateVariables variables_;
    std::set<const Parameter*> said_;
};

// ---- the query

class QueryTemplate {
  public:
    void add(const ValuedParameter& valued) {
        const Parameter& parameter = *valued.parameter;
        const std::string_view name = parameter.name();
        const ParameterStyle style = styleOf(parameter);
        const JV& value = *valued.value;
        if (isJsonContent(parameter)) {
            addVariable(name, false, jsonText(value, JsonForm::Compact));
        } else if (value.isArray()) {
            const char separator = style == ParameterStyle::SpaceDelimited ? ' ' : '|';
            const bool isJoined = !isExploded(parameter) && (style == ParameterStyle::SpaceDelimited ||
                                                             style == ParameterStyle::PipeDelimited);
            UriTemplateList list = listOf(value);
            const std::string arrayName = std::string(name) + "[]";
            if (isJoined && !list.empty())
                addVariable(arrayName, false, joined(list, separator));
            else
                addVariable(arrayName, isExploded(parameter), std::move(list));
        } else if (value.isObject() && style == ParameterStyle::DeepObject) {
            for (auto& [key, text] : pairsOf(value, false))
                addVariable(std::string(name) + "[" + key + "]", false, std::move(text));
        } else {
            addVariable(name, isExploded(parameter) && value.isObject(), templateValue(valued));
        }
    }

    /// Behind a URL without a fragment, that may have a query.
    [[nodiscard]] std::string expand(bool hasQuery) const {
        if (names_.empty())
            return {};
        std::string text = hasQuery ? "{&" : "{?";
        for (const std::string& name : names_)
            text.append(text.size() > 2 ? "," : "").append(name);
        return UriTemplate(text + "}").expand(variables_);
    }

  private:
    void addVariable(std::string_view name, bool isExplodedValue, UriTemplateValue value) {
        std::string variable = variableName(name);
        if (variable.empty() || !variables_.emplace(variable, std::move(value)).second)
            return;
        names_.push_back(std::move(variable) + (isExplodedValue ? "*" : ""));
    }

    std::vector<std::string> names_; ///< with their modifiers
    UriTemplateVariables variables_;
};

// ---- the server

/// What a variable of a server stands for where nobody chose.
[[nodiscard]] std::string_view chosenValue(const openapi::Server& server, std::string_view name) {
    const openapi::ServerVariable* variable = server.variable(name);
    if (variable == nullptr)
        return name;
    if (!variable->defaultValue().empty())
        return variable->defaultValue();
    return variable->enumeration().empty() ? name : variable->enumeration().front().view();
}

[[nodiscard]] std::string serverUrl(const openapi::Server& server) {
    std::string url;
    std::string_view rest = server.url();
    for (std::size_t open = rest.find('{'); open != std::string_view::npos; open = rest.find('{')) {
        const std::size_t close = rest.find('}', open);
        if (close == std::string_view::npos)
            break;
        url.append(rest.substr(0, open)).append(chosenValue(server, rest.substr(open + 1, close - open - 1)));
        rest.remove_prefix(close + 1);
    }
    url += rest;
    url.resize(url.find_last_not_of('/') + 1);
    // An address of IPv6 has brackets (RFC 3986, section 3.2.2).
    const std::size_t open = url.find("://[");
    const std::size_t close = open == std::string::npos ? open : url.find(']', open);
    if (close == std::string::npos)
        return literalText(url);
    const std::string_view whole = url;
    const std::size_t host = open + 4;
    return literalText(whole.substr(0, host - 1)) + "[" + literalText(whole.substr(host, close - host)) +
           "]" + literalText(whole.substr(close + 1));
}

} // namespace

const openapi::Server& serverOf(const openapi::OpenAPI& document, const openapi::OperationRef& ref) {
    for (const auto* servers : {&ref.operation->servers(), &ref.pathItem->servers(), &document.servers()}) {
        if (!servers->empty())
            return *servers->front();
    }
    throw std::runtime_error("No server found");
}

std::string requestUrl(const openapi::Server& server, std::string_view path,
                       const std::vector<ValuedParameter>& parameters) {
    path.remove_prefix(std::min(path.size(), path.find_first_not_of('/')));
    PathTemplate pathTemplate(parameters);
    std::string url = serverUrl(server) + "/" + pathTemplate.expand(path);
    QueryTemplate query;
    for (const ValuedParameter& valued : parameters) {
        if (valued.parameter->location() == ParameterLocation::Query &&
            !pathTemplate.hasSaid(*valued.parameter))
            query.add(valued);
    }
    const std::size_t fragment = std::min(url.find('#'), url.size());
    const bool hasQuery = url.find('?') < fragment;
    url.insert(fragment, query.expand(hasQuery));
    return url;
}

std::optional<std::string> headerText(const ValuedParameter& header) {
    const JV& value = *header.value;
    if (isJsonContent(*header.parameter))
        return jsonText(value, JsonForm::Compact);
    if (value.isNull())
        return std::nullopt;
    if (value.isArray()) {
        const UriTemplateList list = listOf(value);
        return list.empty() ? std::nullopt : std::optional(joined(list, ','));
    }
    if (!value.isObject())
        return scalarText(value);
    std::string text;
    for (const auto& [key, member] : pairsOf(value, false))
        text.append(text.empty() ? "" : ",")
            .append(key)
            .append(isExploded(*header.parameter) ? "=" : ",")
            .append(member);
    return text.empty() ? std::nullopt : std::optional(text);
}

} // namespace specloom::openapi_generator::doc_html
