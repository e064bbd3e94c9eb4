#pragma once

#include "foundation/text_tables.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view

class Hunspell;

namespace specloom {
class FileSystem;
}

namespace specloom::openapi_lint {

class EncodingConverter;

/// A Hunspell dictionary: the words of a language and the rules of how they change.
class Dictionary {
  public:
    /// Both are UTF-8 paths. Throws std::runtime_error with
    ///   "Affix file cannot be read: {}", "Dictionary file cannot be read: {}",
    ///   "Dictionary file does not begin with its number of words: {}", each with the path, and
    ///   "Affix file has an unknown encoding: {}" with the name of the encoding.
    Dictionary(const FileSystem& files, const std::string& affixPath, const std::string& dictionaryPath);
    ~Dictionary();
    Dictionary(const Dictionary&) = delete;
    Dictionary& operator=(const Dictionary&) = delete;

    /// Whether it has a word of UTF-8 text, in some form of it. A word with a character that the dictionary's
    /// encoding lacks is none of its words. What was asked before is remembered.
    [[nodiscard]] bool knows(std::string_view word);

  private:
    [[nodiscard]] bool looksUp(const std::string& word) const;

    std::unique_ptr<Hunspell> hunspell_;
    std::unique_ptr<EncodingConverter> converter_;
    TextMap<bool> answers_;
};

} // namespace specloom::openapi_lint
