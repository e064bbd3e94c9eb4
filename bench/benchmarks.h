#pragma once

#include "bench/table.h"

#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::bench {

/// A document to measure with.
struct Input {
    std::filesystem::path path;
    std::string text;

    [[nodiscard]] std::string name() const { return path.filename().string(); }
    [[nodiscard]] bool isJson() const { return path.extension() == ".json"; }
};

/// Reading, tearing down and writing, inside this process.
void benchJson(const Input& input, int rounds, Table& table);
void benchYaml(const Input& input, int rounds, Table& table);
/// Building, walking and tearing down the tree of an OpenAPI document; nothing for one that is refused.
void benchTree(const Input& input, int rounds, Table& table);
/// Holding an OpenAPI document against its schema.
void benchSchema(const Input& input, int rounds, Table& table);
/// Comparing two versions of a document.
void benchDiff(const Input& source, const Input& destination, int rounds, Table& table);
/// The same for a document and itself, with the promise for that.
void benchDiffOfItself(const Input& input, int rounds, Table& table);
/// Memory of the values of a document that was read.
void benchMemory(const Input& input, Table& table);
/// Whole runs of the program.
void benchFormat(const Input& input, int rounds, Table& table);
/// Nothing for a document that is refused.
void benchLint(const Input& input, int rounds, Table& table);
/// The same for a document that lacks one thing and gets it.
void benchFix(const Input& input, int rounds, Table& table);
void benchStart(int rounds, Table& table);
/// Whole runs of generators: on the largest document of the corpora that they take, and how they grow with
/// operations and tags.
void benchGenerate(int rounds, Table& table);
/// How time and memory of whole runs grow over four doublings of documents that are made to be costly.
void benchGrowth(int rounds, Table& table);

} // namespace specloom::bench
