#include "templating/template_set.h"

#include "templating/data.h"
#include "templating/functions.h"
#include "templating/page_templates.h"

#include <map>     // std::map
#include <new>     // std::bad_alloc
#include <sstream> // std::ostringstream
#include <utility> // std::exchange, std::move

#include <inja/inja.hpp>

namespace specloom::templating {
namespace {

/// What a statement holds: its body or branches. Of a statement without any, nothing.
std::vector<inja::BlockNode*> bodiesOf(inja::AstNode& node) {
    if (auto* loop = dynamic_cast<inja::ForStatementNode*>(&node))
        return {&loop->body};
    if (auto* condition = dynamic_cast<inja::IfStatementNode*>(&node))
        return {&condition->true_statement, &condition->false_statement};
    if (auto* block = dynamic_cast<inja::BlockStatementNode*>(&node))
        return {&block->block};
    return {};
}

/// The name of the template that a statement includes or extends; empty for any other.
std::string_view referenceOf(const inja::AstNode& node) {
    if (const auto* include = dynamic_cast<const inja::IncludeStatementNode*>(&node))
        return include->file;
    if (const auto* extends = dynamic_cast<const inja::ExtendsStatementNode*>(&node))
        return extends->file;
    return {};
}

Message templateNotFound(std::string_view name) {
    return formatMessage("Template not found: {}", name);
}

TemplateError errorAt(std::string_view name, inja::SourceLocation location, std::string_view reason) {
    return TemplateError(
        formatMessage("Template {}, line {}, column {}: {}", name, location.line, location.column, reason));
}

std::string_view textOf(const nlohmann::json& argument) {
    if (!argument.is_string())
        throw std::runtime_error(formatMessage("type must be string, but is {}", argument.type_name()));
    return argument.get_ref<const std::string&>();
}

inja::CallbackFunction callbackOf(const Function& function) {
    return [call = function.call](const inja::Arguments& arguments) {
        std::vector<std::string_view> texts;
        texts.reserve(arguments.size());
        for (const nlohmann::json* argument : arguments)
            texts.push_back(textOf(*argument));
        return std::visit([](const auto& value) { return nlohmann::json(value); }, call(texts));
    };
}

inja::CallbackFunction callbackOf(const TextFunction& function) {
    return [call = function.call](const inja::Arguments& arguments) -> nlohmann::json {
        return call(textOf(*arguments.front()));
    };
}

} // namespace

class TemplateSet::Engine {
  public:
    Engine(const std::vector<Table>& tables, const std::vector<Function>& functions) {
        environment_.set_trim_blocks(true);
        environment_.set_lstrip_blocks(true);
        // An empty sign would turn every line into a statement; this one stands in no text.
        environment_.set_line_statement("\x01line");
        environment_.set_search_included_templates_in_files(false);
        for (const TextFunction& function : textFunctions())
            environment_.add_callback(std::string(function.name), callbackOf(function));
        for (const Function& function : functions)
            environment_.add_callback(function.name, static_cast<int>(function.parameterCount),
                                      callbackOf(function));
        for (const Table& table : tables)
            add(table);
        add(pageTemplates());
    }

    void setConstant(std::string_view name, const jv::JV& value) {
        if (!constants_.contains(name))
            constantNames_.emplace_back(name);
        constants_[std::string(name)] = toData(value);
    }

    std::string render(std::string_view name, const jv::JV& data) {
        const auto found = templates_.find(name);
        if (found == templates_.end())
            throw TemplateError(templateNotFound(name));
        parse(found->first, found->second);
        const CurrentPlace rendering(current_, {.templateName = found->first});
        nlohmann::json values = toData(data);
        const LentConstants lending(constantNames_, constantsAt_, values);
        return renderParsed(found->second.parsed, values);
    }

  private:
    /// Where a statement or an expression stands: in the template of that name, from the start in bytes.
    struct Place {
        std::string_view templateName;
        std::size_t offset = 0;
    };

    /// Sets the current place as long as a rendering lasts, however it ends.
    class CurrentPlace {
      public:
        CurrentPlace(Place& current, Place place)
            : current_(current), around_(std::exchange(current, place)) {}
        ~CurrentPlace() { current_ = around_; }
        CurrentPlace(const CurrentPlace&) = delete;
        CurrentPlace& operator=(const CurrentPlace&) = delete;

      private:
        Place& current_;
        Place around_;
    };

    /// Moves the constants into the data of a rendering as long as that lasts, however it ends. A rendering
    /// that a function begins borrows them from the one around it.
    class LentConstants {
      public:
        LentConstants(const std::vector<std::string>& names, nlohmann::json*& place, nlohmann::json& data)
            : names_(names), place_(place), around_(std::exchange(place, &data)) {
            for (const std::string& name : names_)
                data[name].swap((*around_)[name]);
        }
        ~LentConstants() {
            for (const std::string& name : names_)
                (*place_)[name].swap((*around_)[name]);
            place_ = around_;
        }
        LentConstants(const LentConstants&) = delete;
        LentConstants& operator=(const LentConstants&) = delete;

      private:
        const std::vector<std::string>& names_;
        nlohmann::json*& place_;
        nlohmann::json* around_;
    };

    /// A statement that says where it stands while it is rendered. What is thrown leaves the innermost in
    /// `current`: the only way to learn of the template, because neither the engine's exceptions nor those of
    /// functions and values name it.
    class PlacedNode final : public inja::AstNode {
      public:
        PlacedNode(Place place, std::shared_ptr<inja::AstNode> node, Place& current)
            : AstNode(node->pos), place_(place), node_(std::move(node)), current_(current) {}

        void accept(inja::NodeVisitor& visitor) const override {
            const Place around = current_;
            current_ = place_;
            node_->accept(visitor);
            current_ = around;
        }

      private:
        Place place_;
        std::shared_ptr<inja::AstNode> node_;
        Place& current_;
    };

    enum class State { Unknown, InParsing, Parsed };
    struct Entry {
        explicit Entry(std::string_view content) : text(content) {}

        std::string_view text;
        State state = State::Unknown;
        inja::Template parsed;
    };

    void add(const Table& table) {
        for (const EmbeddedFile& file : table)
            templates_.try_emplace(file.name, file.content);
    }

    /// Also what it names, and so on; the nesting is bounded by the number of templates. A template that
    /// failed is parsed again when it is asked for again, to fail again.
    void parse(std::string_view name, Entry& entry) {
        if (entry.state == State::Parsed)
            return;
        entry.state = State::InParsing;
        try {
            entry.parsed = environment_.parse(entry.text);
            prepare(name, entry.parsed);
        } catch (const inja::InjaError& error) {
            entry.state = State::Unknown;
            throw errorAt(name, error.location, error.message);
        } catch (const nlohmann::json::exception& error) { // of a literal; the engine does not say where
            entry.state = State::Unknown;
            throw TemplateError(formatMessage("Template {}: {}", name, error.what()));
        } catch (...) {
            entry.state = State::Unknown;
            throw;
        }
        environment_.include_template(std::string(name), entry.parsed);
        entry.state = State::Parsed;
    }

    /// Parses what the template names, and makes its statements say where they stand.
    void prepare(std::string_view name, inja::Template& parsed) {
        std::vector<inja::BlockNode*> open = {&parsed.root};
        while (!open.empty()) {
            inja::BlockNode& block = *open.back();
            open.pop_back();
            for (std::shared_ptr<inja::AstNode>& node : block.nodes) {
                if (const std::string_view reference = referenceOf(*node); !reference.empty())
                    parseReference(reference, name, inja::get_source_location(parsed.content, node->pos));
                const std::vector<inja::BlockNode*> bodies = bodiesOf(*node);
                open.insert(open.end(), bodies.begin(), bodies.end());
                if (dynamic_cast<const inja::TextNode*>(node.get()) == nullptr)
                    node = std::make_shared<PlacedNode>(Place{name, node->pos}, node, current_);
            }
        }
    }

    void parseReference(std::string_view reference, std::string_view name, inja::SourceLocation location) {
        const auto found = templates_.find(reference);
        if (found == templates_.end())
            throw errorAt(name, location, templateNotFound(reference).composed());
        if (found->second.state == State::InParsing)
            throw errorAt(name, location,
                          formatMessage("Template includes itself: {}", reference).composed());
        parse(found->first, found->second);
    }

    std::string renderParsed(const inja::Template& parsed, const nlohmann::json& data) {
        std::ostringstream stream;
        stream.exceptions(std::ios::badbit); // or the end of memory would make a short text
        try {
            environment_.render_to(stream, parsed, data);
        } catch (const TemplateError&) { // of a function that renders
            throw;
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const inja::InjaError& error) {
            throw errorAt(current_.templateName, error.location, error.message);
        } catch (const std::exception& error) {
            throw errorAt(current_.templateName, locationOf(current_), error.what());
        }
        return std::move(stream).str();
    }

    [[nodiscard]] inja::SourceLocation locationOf(const Place& place) const {
        return inja::get_source_location(templates_.find(place.templateName)->second.text, place.offset);
    }

    inja::Environment environment_;
    std::map<std::string_view, Entry> templates_;
    Place current_; ///< of what is being rendered
    std::vector<std::string> constantNames_;
    nlohmann::json constants_ = nlohmann::json::object();
    nlohmann::json* constantsAt_ = &constants_; ///< or the data of the innermost rendering
};

TemplateSet::TemplateSet(const std::vector<Table>& tables, const std::vector<Function>& functions)
    : engine_(std::make_unique<Engine>(tables, functions)) {}

TemplateSet::~TemplateSet() = default;

void TemplateSet::setConstant(std::string_view name, const jv::JV& value) {
    engine_->setConstant(name, value);
}

std::string TemplateSet::render(std::string_view name, const jv::JV& data) const {
    return engine_->render(name, data);
}

} // namespace specloom::templating
