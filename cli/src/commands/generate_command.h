#pragma once

#include "cli/command.h"
#include "cli/commands/generate_leaves.h"

#include <deque> // std::deque

namespace specloom::cli {

/// Generates files from an OpenAPI document. Each leaf of the tree of commands below it (generateLeaves())
/// selects one plugin of openapi_generator::PluginRunner.
class GenerateCommand final : public Command {
  public:
    GenerateCommand() : Command("generate") {}
    ~GenerateCommand() override = default;
    void configure(App& app) override;

    /// Throws what GenerateLeaf::handOverArguments() and PluginRunner::run() throw. A command line that ends
    /// before a leaf is an unreachable path.
    [[nodiscard]] std::int32_t run() override;

  private:
    /// A command of the tree with its row.
    template <typename Row>
    struct Branch {
        explicit Branch(const Row& tableRow) : row(&tableRow), parser(tableRow.name, commandVersion) {
            parser.addDescription(tableRow.description);
        }
        const Row* row;
        ArgumentParser parser;
    };

    [[nodiscard]] ArgumentParser& parentOf(const GenerateLeaf& leaf);
    [[nodiscard]] const Branch<GenerateLeaf>& chosenLeaf();

    // Parsers refer to one another, so they stay where they are.
    std::deque<Branch<GenerateGroup>> groups_;
    std::deque<Branch<GenerateLeaf>> leaves_;
};

} // namespace specloom::cli
