#include "openapi_lint/path_renaming.h"

#include "foundation/message.h"
#include "foundation/text_tables.h"
#include "openapi/url_template.h"

#include <algorithm> // std::find_if, std::min
#include <memory>    // std::make_unique
#include <utility>   // std::move, std::pair
#include <vector>    // std::vector

namespace specloom::openapi_lint {
namespace {

using openapi::Node;
using openapi::NodeType;
using openapi::ParameterList;
using openapi::ParameterLocation;
using openapi::PathItem;

constexpr const char* pathRenamed = "path \"{}\" becomes \"{}\"";
constexpr const char* pathTaken = "path \"{}\" stays, because \"{}\" is taken";
constexpr const char* parametersMeet =
    "path \"{}\" stays, because two of its parameters would have one name in \"{}\"";
constexpr const char* parameterShared =
    "parameter \"{}\" of path \"{}\" is a shared component and keeps its name";

/// A name of a template before and after.
using NamePair = std::pair<std::string, std::string>;

struct RenamedPath {
    const Node* entry;
    std::string before;
    std::string after;
};

[[nodiscard]] std::vector<NamePair> renamedNames(std::string_view before, std::string_view after) {
    const auto oldNames = openapi::templateNames(before);
    const auto newNames = openapi::templateNames(after);
    std::vector<NamePair> names;
    for (std::size_t place = 0; place < std::min(oldNames.size(), newNames.size()); ++place)
        if (oldNames[place] != newNames[place])
            names.emplace_back(oldNames[place], newNames[place]);
    return names;
}

/// The parameters of a path item and of its operations.
[[nodiscard]] std::vector<const ParameterList*> parameterLists(const PathItem& item) {
    std::vector<const ParameterList*> lists{&item.parameters()};
    for (const auto& operation : item.operations())
        if (operation != nullptr)
            lists.push_back(&operation->parameters());
    return lists;
}

[[nodiscard]] std::size_t distinctNames(std::string_view url) {
    const auto names = openapi::templateNames(url);
    return TextViewSet(names.begin(), names.end()).size();
}

/// Whether two parameters that have different names now would not have them any more.
[[nodiscard]] bool doNamesMeet(const RenamedPath& path) {
    if (distinctNames(path.before) != distinctNames(path.after))
        return true;
    const auto* item = openapi::resolveTo<PathItem>(path.entry);
    if (item == nullptr)
        return false;
    for (const auto& [before, after] : renamedNames(path.before, path.after))
        for (const ParameterList* list : parameterLists(*item))
            if (list->find(before, ParameterLocation::Path) != nullptr &&
                list->find(after, ParameterLocation::Path) != nullptr)
                return true;
    return false;
}

/// Lets the parameters of one path follow its new URL.
class ParameterRenaming {
  public:
    ParameterRenaming(LintContext& context, const RenamedPath& path)
        : context_(context), path_(path), names_(renamedNames(path.before, path.after)),
          isShared_(path.entry->type() == NodeType::Reference) {}

    void run() {
        PathItem* item = context_.root().paths().find(path_.after);
        if (item == nullptr || names_.empty())
            return;
        renameAll(*item);
        for (std::size_t method = 0; method < item->operations().size(); ++method)
            if (auto* operation = item->operation(static_cast<openapi::OperationType>(method)))
                renameAll(*operation);
    }

  private:
    template <typename Owner>
    void renameAll(Owner& owner) {
        for (std::size_t index = 0; index < owner.parameters().size(); ++index)
            if (const std::string* name = newNameOf(*owner.parameters().nodes()[index]))
                owner.renameParameter(index, *name);
    }

    /// Null when the parameter keeps its name. Otherwise its source gets the new one.
    const std::string* newNameOf(const Node& node) {
        const auto* parameter = openapi::resolveTo<openapi::Parameter>(&node);
        if (parameter == nullptr || parameter->location() != ParameterLocation::Path)
            return nullptr;
        const auto name = std::find_if(names_.begin(), names_.end(),
                                       [&](const NamePair& pair) { return pair.first == parameter->name(); });
        if (name == names_.end())
            return nullptr;
        if (isShared_ || node.type() == NodeType::Reference) {
            noteShared(name->first);
            return nullptr;
        }
        if (node.source() != nullptr)
            context_.edits().setMember(*node.source(), "name", std::make_unique<jv::JV>(name->second));
        return &name->second;
    }

    /// Once for a path.
    void noteShared(const std::string& name) {
        if (shared_.insert(name).second)
            context_.note(formatMessage(parameterShared, name, path_.after));
    }

    LintContext& context_;
    const RenamedPath& path_;
    std::vector<NamePair> names_;
    bool isShared_; ///< the path item itself is a component
    TextSet shared_;
};

} // namespace

void renamePaths(LintContext& context, const PathRenaming& renaming) {
    openapi::Paths& paths = context.root().paths();
    std::vector<RenamedPath> wanted;
    paths.renameAll([&](std::string_view url, const Node& entry) {
        RenamedPath path{&entry, std::string(url), renaming(url, entry)};
        const bool changes = path.before != path.after;
        const bool meets = changes && doNamesMeet(path);
        if (meets)
            context.note(formatMessage(parametersMeet, path.before, path.after));
        std::string result = meets ? path.before : path.after;
        if (changes && !meets)
            wanted.push_back(std::move(path));
        return result;
    });
    std::vector<source_edit::Edits::Renaming> renamed;
    for (const RenamedPath& path : wanted) {
        if (paths.urlOf(path.entry) != path.after) {
            context.note(formatMessage(pathTaken, path.before, path.after));
            continue;
        }
        context.note(formatMessage(pathRenamed, path.before, path.after));
        ParameterRenaming(context, path).run();
        renamed.emplace_back(path.before, path.after);
    }
    if (!renamed.empty() && paths.source() != nullptr)
        context.edits().renameMembers(*paths.source(), renamed);
}

} // namespace specloom::openapi_lint
