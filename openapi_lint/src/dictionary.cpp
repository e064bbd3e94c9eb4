#include "openapi_lint/dictionary.h"

#include "foundation/ascii.h"
#include "foundation/file_system.h"
#include "foundation/message.h"
#include "foundation/strings.h"

#include <cerrno>    // errno, E2BIG
#include <cstdint>   // std::intptr_t
#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

#include <hunspell/hunspell.hxx>
#include <iconv.h>

namespace specloom::openapi_lint {
namespace {

/// Hunspell opens the files itself, and says on standard error when it cannot.
std::string requireReadable(const FileSystem& files, const std::string& path,
                            MessageFormat<std::string> message) {
    try {
        return files.readFile(path);
    } catch (const std::exception&) {
        throw std::runtime_error(formatMessage(message, path));
    }
}

bool beginsWithCount(std::string_view content) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (content.starts_with(byteOrderMark))
        content.remove_prefix(byteOrderMark.size());
    return !content.empty() && ascii::isDigit(content[0]);
}

/// The name that iconv has for an encoding of Hunspell's.
std::string iconvName(const std::string& encoding) {
    if (encoding == "TIS620-2533")
        return "TIS-620";
    constexpr std::string_view codePage = "microsoft-";
    return encoding.starts_with(codePage) ? encoding.substr(codePage.size()) : encoding;
}

} // namespace

/// From UTF-8 to an encoding of one byte a character.
class EncodingConverter {
  public:
    /// Throws as Dictionary tells.
    explicit EncodingConverter(const std::string& encoding)
        : descriptor_(iconv_open(iconvName(encoding).c_str(), "UTF-8")) {
        if (reinterpret_cast<std::intptr_t>(descriptor_) == -1)
            throw std::runtime_error(formatMessage("Affix file has an unknown encoding: {}", encoding));
    }
    ~EncodingConverter() { iconv_close(descriptor_); }
    EncodingConverter(const EncodingConverter&) = delete;
    EncodingConverter& operator=(const EncodingConverter&) = delete;

    /// Empty when the encoding lacks one of the characters.
    [[nodiscard]] std::optional<std::string> convert(std::string text) const {
        std::string result(4 * text.size(), '\0');
        char* from = text.data();
        char* to = result.data();
        std::size_t fromLeft = text.size();
        std::size_t toLeft = result.size();
        iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);
        // Characters that were replaced by others are counted: none may be.
        if (iconv(descriptor_, &from, &fromLeft, &to, &toLeft) != 0)
            return std::nullopt;
        result.resize(result.size() - toLeft);
        return result;
    }

  private:
    iconv_t descriptor_;
};

Dictionary::Dictionary(const FileSystem& files, const std::string& affixPath,
                       const std::string& dictionaryPath) {
    requireReadable(files, affixPath, "Affix file cannot be read: {}");
    if (!beginsWithCount(requireReadable(files, dictionaryPath, "Dictionary file cannot be read: {}")))
        throw std::runtime_error(
            formatMessage("Dictionary file does not begin with its number of words: {}", dictionaryPath));
    hunspell_ = std::make_unique<Hunspell>(affixPath.c_str(), dictionaryPath.c_str());
    converter_ = std::make_unique<EncodingConverter>(hunspell_->get_dict_encoding());
}

Dictionary::~Dictionary() = default;

bool Dictionary::knows(std::string_view word) {
    std::string plain(word);
    replaceAll(plain, "\u2019", "'"); // not every dictionary has the typographic apostrophe
    const auto [answer, isNew] = answers_.try_emplace(std::move(plain), false);
    if (isNew)
        answer->second = looksUp(answer->first);
    return answer->second;
}

bool Dictionary::looksUp(const std::string& word) const {
    const std::optional<std::string> converted = converter_->convert(word);
    return converted && hunspell_->spell(*converted);
}

} // namespace specloom::openapi_lint
