#include "source_edit/rendering.h"

#include "jv/json_writer.h"
#include "jv/tree_builder.h"
#include "jv/yaml_writer.h"

#include <algorithm> // std::any_of, std::max
#include <memory>    // std::make_unique
#include <utility>   // std::move

namespace specloom::source_edit {
namespace {

[[nodiscard]] std::string asJson(const jv::JVDocument& document, std::int64_t indent) {
    jv::JSONWriter writer;
    writer.setIndent(indent);
    writer.write(document);
    std::string text = std::move(writer).output();
    if (text.ends_with('\n'))
        text.pop_back();
    return text;
}

[[nodiscard]] std::string asYaml(const jv::JVDocument& document, bool inFlow) {
    jv::YAMLWriter writer;
    writer.setIndent(inFlow ? 0 : 2);
    writer.write(document);
    std::string text = std::move(writer).output();
    while (text.ends_with('\n'))
        text.pop_back();
    if (text.ends_with("\n...")) // behind a scalar alone
        text.erase(text.size() - 4);
    return text;
}

/// With this line end, and the indentation in front of all lines but the first and empty ones.
[[nodiscard]] std::string indented(std::string_view text, std::string_view lineEnd,
                                   std::string_view indentation) {
    std::string result;
    while (true) {
        const std::size_t end = text.find('\n');
        result += text.substr(0, end);
        if (end == std::string_view::npos)
            return result;
        text.remove_prefix(end + 1);
        result += lineEnd;
        if (!text.empty() && text.front() != '\n')
            result += indentation;
    }
}

[[nodiscard]] bool isUnprintable(std::string_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; });
}

[[nodiscard]] std::string inSingleQuotes(std::string_view text) {
    std::string result = "'";
    for (const char c : text)
        result.append(c == '\'' ? 2 : 1, c);
    return result += '\'';
}

[[nodiscard]] std::unique_ptr<jv::JVDocument> documentOf(std::string_view text, bool inArray) {
    jv::TreeBuilder builder(std::make_unique<jv::JVDocument>());
    if (inArray)
        builder.startArray({});
    builder.addString(text, {});
    if (inArray)
        builder.end();
    return builder.takeDocument();
}

/// The text of the only element of a list.
[[nodiscard]] std::string elementOfYaml(const jv::JVDocument& list, bool inFlow) {
    std::string text = asYaml(list, inFlow);
    return inFlow ? text.substr(1, text.size() - 2) : text.substr(2);
}

} // namespace

std::string renderedString(std::string_view text, std::string_view former, const Surroundings& around) {
    const bool wasSingle = former.starts_with('\'');
    if (wasSingle && !isUnprintable(text))
        return inSingleQuotes(text);
    if (wasSingle || former.starts_with('"') || around.format == jv::DocumentFormat::Json)
        return asJson(*documentOf(text, false), 0);
    return elementOfYaml(*documentOf(text, true), around.inFlow);
}

std::string renderedValue(const jv::JVDocument& value, const Surroundings& around) {
    const jv::JV& root = *value.root();
    if (around.format == jv::DocumentFormat::Json)
        return asJson(value, 0);
    if (root.isString())
        return indented(renderedString(root.text(), "", around), around.lineEnd, around.indentation);
    const bool hasBlock = (root.isArray() || root.isObject()) && root.size() != 0;
    if (!hasBlock || around.inFlow)
        return asYaml(value, true);
    const std::string indentation = std::string(around.indentation) + "  ";
    return std::string(around.lineEnd) + indentation +
           indented(asYaml(value, false), around.lineEnd, indentation);
}

std::string renderedBlock(const jv::JVDocument& value, const Surroundings& around) {
    return indented(asYaml(value, around.inFlow), around.lineEnd, around.indentation);
}

} // namespace specloom::source_edit
