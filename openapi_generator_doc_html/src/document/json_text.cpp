#include "openapi_generator_doc_html/document/json_text.h"

#include "foundation/escapes.h"
#include "jv/jv_document.h"

#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

namespace specloom::openapi_generator::doc_html {

namespace {

using jv::JV;

/// Input decides how deep a value is, so open containers stand in a list.
class JsonTextWriter {
  public:
    explicit JsonTextWriter(JsonForm form) : form_(form) {}

    [[nodiscard]] std::string write(const JV& value) {
        begin(value);
        while (!open_.empty()) {
            Container& container = open_.back();
            if (container.next == container.values.size())
                end();
            else
                writeNext(container);
        }
        return std::move(out_);
    }

  private:
    struct Container {
        bool isObject;
        std::vector<jv::Member> values; ///< without keys in an array
        std::size_t next = 0;
    };

    void begin(const JV& value) {
        if (value.isArray() || value.isObject()) {
            Container container{.isObject = value.isObject(), .values = valuesOf(value)};
            out_ += container.isObject ? '{' : '[';
            open_.push_back(std::move(container));
        } else {
            writeScalar(value);
        }
    }

    void writeNext(Container& container) {
        const jv::Member member = container.values[container.next];
        if (container.next > 0)
            out_ += ',';
        ++container.next;
        breakLine(open_.size());
        if (container.isObject) {
            writeKey(member.key);
            out_ += form_ == JsonForm::Compact ? ":" : ": ";
        }
        begin(*member.value);
    }

    void end() {
        const bool isObject = open_.back().isObject;
        if (!open_.back().values.empty())
            breakLine(open_.size() - 1);
        open_.pop_back();
        out_ += isObject ? '}' : ']';
    }

    void breakLine(std::size_t level) {
        if (form_ == JsonForm::Compact || open_.size() > deepestIndented)
            return;
        out_ += '\n';
        out_.append(2 * level, ' ');
    }

    void writeKey(std::string_view key) {
        // In a literal of JavaScript it would set the prototype (ECMA-262, section B.3.1).
        if (form_ == JsonForm::JavaScript && key == "__proto__")
            out_ += "[\"__proto__\"]";
        else
            out_ += toJsonLiteral(key);
    }

    void writeScalar(const JV& value) {
        switch (value.kind()) {
        case jv::Kind::Boolean:
            out_ += value.boolean() ? "true" : "false";
            break;
        case jv::Kind::Number:
            writeNumber(value.number());
            break;
        case jv::Kind::String:
            out_ += toJsonLiteral(value.text());
            break;
        default:
            out_ += "null";
        }
    }

    void writeNumber(const number::Number& value) {
        if (value.kind() == number::NumberKind::Float && (value.isNaN() || value.isInfinite()))
            out_ += "null";
        else
            value.appendTo(out_);
    }

    [[nodiscard]] std::vector<jv::Member> valuesOf(const JV& container) const {
        if (container.isObject())
            return noDocument_.orderedMembers(&container);
        std::vector<jv::Member> values;
        values.reserve(container.size());
        for (const JV* element : container.elements())
            values.push_back({{}, element});
        return values;
    }

    JsonForm form_;
    std::string out_;
    std::vector<Container> open_;
    jv::JVDocument noDocument_; ///< the order of members lies in the objects
};

} // namespace

std::string jsonText(const JV& value, JsonForm form) {
    return JsonTextWriter(form).write(value);
}

} // namespace specloom::openapi_generator::doc_html
