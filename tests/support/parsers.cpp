#include "test_support/parsers.h"

#include "test_support/corpora.h"

#include <istream>   // std::istream
#include <map>       // std::map
#include <memory>    // std::unique_ptr
#include <optional>  // std::optional
#include <sstream>   // std::istringstream
#include <stdexcept> // std::runtime_error

#include <expat.h>
#include <nlohmann/json.hpp>
#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/parser.h>

namespace specloom::test_support {

namespace {

/// Puts values together as they come, the children before their parents.
class Assembler {
  public:
    void open(Tree::Kind kind) { frames_.push_back({Tree{kind, {}, {}, {}}, std::nullopt}); }
    void key(std::string text) { frames_.back().key = std::move(text); }
    [[nodiscard]] bool keyDue() const {
        return !frames_.empty() && frames_.back().container.kind == Tree::Kind::Object && !frames_.back().key;
    }
    void add(Tree value) {
        if (frames_.empty()) {
            root_ = std::move(value);
        } else if (Frame& frame = frames_.back(); frame.container.kind == Tree::Kind::Array) {
            frame.container.elements.push_back(std::move(value));
        } else {
            frame.container.set(std::move(*frame.key), std::move(value));
            frame.key.reset();
        }
    }
    Tree close() {
        Tree container = std::move(frames_.back().container);
        frames_.pop_back();
        return container;
    }
    [[nodiscard]] Tree root() && { return std::move(root_); }

  private:
    struct Frame {
        Tree container;
        std::optional<std::string> key;
    };
    std::vector<Frame> frames_;
    Tree root_;
};

// ---- JSON

class JsonSax : public nlohmann::json_sax<nlohmann::json> {
  public:
    bool null() override { return scalar(Tree::Kind::Null, "null"); }
    bool boolean(bool value) override { return scalar(Tree::Kind::Boolean, value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override {
        return scalar(Tree::Kind::Number, std::to_string(value));
    }
    bool number_unsigned(number_unsigned_t value) override {
        return scalar(Tree::Kind::Number, std::to_string(value));
    }
    bool number_float(number_float_t, const string_t& text) override {
        return scalar(Tree::Kind::Number, text);
    }
    bool string(string_t& text) override { return scalar(Tree::Kind::String, text); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(Tree::Kind::Object); }
    bool key(string_t& text) override {
        assembler_.key(text);
        return true;
    }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(Tree::Kind::Array); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& error) override {
        throw std::runtime_error(error.what());
    }

    [[nodiscard]] Tree root() && { return std::move(assembler_).root(); }

  private:
    bool scalar(Tree::Kind kind, std::string text) {
        assembler_.add(Tree{kind, std::move(text), {}, {}});
        return true;
    }
    bool open(Tree::Kind kind) {
        assembler_.open(kind);
        return true;
    }
    bool close() {
        assembler_.add(assembler_.close());
        return true;
    }

    Assembler assembler_;
};

// ---- YAML

[[nodiscard]] bool isOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), text) != words.end();
}

[[nodiscard]] std::size_t digitsAt(std::string_view text, std::size_t at, std::string_view digits) {
    return std::min(text.find_first_not_of(digits, at), text.size()) - at;
}

/// [-+]? ( \. [0-9]+ | [0-9]+ ( \. [0-9]* )? ) ( [eE] [-+]? [0-9]+ )?, which takes in the decimal integers.
[[nodiscard]] bool isCoreDecimal(std::string_view text) {
    constexpr std::string_view decimal = "0123456789";
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    std::size_t digits = digitsAt(text, at, decimal);
    at += digits;
    if (at < text.size() && text[at] == '.') {
        const std::size_t fraction = digitsAt(text, ++at, decimal);
        digits += fraction;
        at += fraction;
    }
    if (digits == 0)
        return false;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        if (at < text.size() && (text[at] == '-' || text[at] == '+'))
            ++at;
        const std::size_t exponent = digitsAt(text, at, decimal);
        if (exponent == 0)
            return false;
        at += exponent;
    }
    return at == text.size();
}

[[nodiscard]] bool isCoreNumber(std::string_view text) {
    if (text.starts_with("0o"))
        return text.size() > 2 && digitsAt(text, 2, "01234567") == text.size() - 2;
    if (text.starts_with("0x"))
        return text.size() > 2 && digitsAt(text, 2, "0123456789abcdefABCDEF") == text.size() - 2;
    if (isOneOf(text, {".nan", ".NaN", ".NAN"}))
        return true;
    if (const std::string_view bare = text.substr(text.starts_with('-') || text.starts_with('+') ? 1 : 0);
        isOneOf(bare, {".inf", ".Inf", ".INF"}))
        return true;
    return isCoreDecimal(text);
}

[[nodiscard]] Tree::Kind coreKind(std::string_view text) {
    if (isOneOf(text, {"", "~", "null", "Null", "NULL"}))
        return Tree::Kind::Null;
    if (isOneOf(text, {"true", "True", "TRUE", "false", "False", "FALSE"}))
        return Tree::Kind::Boolean;
    return isCoreNumber(text) ? Tree::Kind::Number : Tree::Kind::String;
}

class YamlEvents : public YAML::EventHandler {
  public:
    void OnDocumentStart(const YAML::Mark&) override {}
    void OnDocumentEnd() override {}
    /// An empty plain scalar.
    void OnNull(const YAML::Mark&, YAML::anchor_t anchor) override { add(Tree{}, anchor); }
    void OnAlias(const YAML::Mark&, YAML::anchor_t anchor) override { add(anchors_.at(anchor), 0); }
    void OnScalar(const YAML::Mark&, const std::string& tag, YAML::anchor_t anchor,
                  const std::string& text) override {
        if (tag != "?" && tag != "!" && !tag.empty())
            throw std::runtime_error("An explicit tag is not judged: " + tag);
        add(Tree{tag == "!" ? Tree::Kind::String : coreKind(text), text, {}, {}}, anchor);
    }
    void OnSequenceStart(const YAML::Mark&, const std::string&, YAML::anchor_t anchor,
                         YAML::EmitterStyle::value) override {
        open(Tree::Kind::Array, anchor);
    }
    void OnSequenceEnd() override { close(); }
    void OnMapStart(const YAML::Mark&, const std::string&, YAML::anchor_t anchor,
                    YAML::EmitterStyle::value) override {
        open(Tree::Kind::Object, anchor);
    }
    void OnMapEnd() override { close(); }

    [[nodiscard]] Tree root() && { return std::move(assembler_).root(); }

  private:
    void add(Tree value, YAML::anchor_t anchor) {
        if (anchor != 0)
            anchors_[anchor] = value;
        if (assembler_.keyDue())
            assembler_.key(value.text);
        else
            assembler_.add(std::move(value));
    }
    void open(Tree::Kind kind, YAML::anchor_t anchor) {
        if (assembler_.keyDue())
            throw std::runtime_error("A container as a key is not judged");
        assembler_.open(kind);
        openAnchors_.push_back(anchor);
    }
    void close() {
        const YAML::anchor_t anchor = openAnchors_.back();
        openAnchors_.pop_back();
        add(assembler_.close(), anchor);
    }

    Assembler assembler_;
    std::vector<YAML::anchor_t> openAnchors_;
    std::map<YAML::anchor_t, Tree> anchors_;
};

// ---- ours

class TreeMaker {
  public:
    explicit TreeMaker(const jv::JVDocument& document) : document_(document) {}

    /// Recursive: it looks at documents whose nesting is known to be shallow.
    [[nodiscard]] Tree make(const jv::JV& value) const {
        switch (value.kind()) {
        case jv::Kind::Null:
            return Tree{Tree::Kind::Null, "null", {}, {}};
        case jv::Kind::Boolean:
            return Tree{Tree::Kind::Boolean, value.boolean() ? "true" : "false", {}, {}};
        case jv::Kind::Number:
            return Tree{Tree::Kind::Number, value.number().toString(), {}, {}};
        case jv::Kind::String:
            return Tree{Tree::Kind::String, std::string(value.text()), {}, {}};
        case jv::Kind::Array: {
            Tree array{Tree::Kind::Array, {}, {}, {}};
            for (const jv::JV* element : value.elements())
                array.elements.push_back(make(*element));
            return array;
        }
        case jv::Kind::Object:
            break;
        }
        Tree object{Tree::Kind::Object, {}, {}, {}};
        for (const jv::Member& member : document_.orderedMembers(&value)) {
            object.keys.emplace_back(member.key);
            object.elements.push_back(make(*member.value));
        }
        return object;
    }

  private:
    const jv::JVDocument& document_;
};

} // namespace

Tree parseJsonIndependently(std::string_view text) {
    JsonSax sax;
    nlohmann::json::sax_parse(text, &sax);
    return std::move(sax).root();
}

Tree parseYamlIndependently(std::string_view text) {
    std::istringstream stream{std::string(text)};
    YAML::Parser parser(stream);
    YamlEvents events;
    while (parser.HandleNextDocument(events)) {
    }
    return std::move(events).root();
}

Tree parseFileIndependently(const std::filesystem::path& path) {
    const std::string text = fileBytes(path);
    return path.extension() == ".json" ? parseJsonIndependently(text) : parseYamlIndependently(text);
}

std::string markupFault(std::string_view text) {
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr),
                                                                         XML_ParserFree);
    XML_UseForeignDTD(parser.get(), XML_TRUE);
    XML_SetParamEntityParsing(parser.get(), XML_PARAM_ENTITY_PARSING_ALWAYS);
    if (XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_OK)
        return "";
    return std::string(XML_ErrorString(XML_GetErrorCode(parser.get()))) + " in line " +
           std::to_string(XML_GetCurrentLineNumber(parser.get()));
}

Tree treeOf(const jv::JVDocument& document) {
    return TreeMaker(document).make(*document.root());
}

} // namespace specloom::test_support
