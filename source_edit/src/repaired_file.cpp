#include "source_edit/repaired_file.h"

#include "foundation/file_system.h"
#include "foundation/output_file.h"
#include "source_edit/unified_diff.h"

#include <filesystem> // std::filesystem::is_regular_file
#include <optional>   // std::optional
#include <stdexcept>  // std::runtime_error
#include <utility>    // std::move

namespace specloom::source_edit {
namespace {

constexpr const char* noRegularFile = "Cannot repair {}: it is no regular file";
constexpr const char* hasAliases =
    "Cannot repair {}: it has YAML aliases, the first in line {}, and what they stand for is not read";
constexpr const char* hasRepeatedKeys =
    "Cannot repair {}: an object has a key twice, and one of its values is not read";
constexpr const char* notUtf8 = "Cannot repair {}: its text is not UTF-8";
constexpr const char* notAsIntended = "Cannot repair {}: its text would not read as it should afterwards";
constexpr const char* renderedAnew =
    "{}: the text of \"{}\" could not take its repair and was rendered anew, without its comments";

/// UTF-16, which YAML may be in, begins with a byte-order mark, or has zeros for half of an ASCII character.
[[nodiscard]] bool isWideText(std::string_view text) {
    return text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff") ||
           text.substr(0, 2).find('\0') != std::string_view::npos;
}

void requireRepairable(std::string_view path, const jv::ReadingLosses& losses) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(pathFromUtf8(path), error))
        throw std::runtime_error(formatMessage(noRegularFile, path));
    if (losses.aliases != 0)
        throw std::runtime_error(formatMessage(hasAliases, path, losses.firstAliasLine));
    if (losses.repeatedKeys)
        throw std::runtime_error(formatMessage(hasRepeatedKeys, path));
}

[[nodiscard]] std::string textOfFile(std::string_view path, const Edits& edits) {
    requireRepairable(path, edits.source().losses());
    std::string text = LocalFileSystem().readFile(path);
    if (isWideText(text))
        throw std::runtime_error(formatMessage(notUtf8, path));
    return text;
}

[[nodiscard]] EditedText editedTextOf(std::string_view path, std::string_view before, const Edits& edits,
                                      const PositionSink& moved) {
    std::optional<EditedText> edited =
        applyEdits(before, jv::formatFromPath(path).value_or(jv::DocumentFormat::Json), edits, moved);
    if (!edited)
        throw std::runtime_error(formatMessage(notAsIntended, path));
    return std::move(*edited);
}

} // namespace

RepairedFile::RepairedFile(std::string_view path, const Edits& edits, const PositionSink& moved)
    : path_(path), before_(textOfFile(path, edits)), edited_(editedTextOf(path, before_, edits, moved)) {}

std::string RepairedFile::diff() const {
    return unifiedDiff(path_, before_, edited_.text, edited_.changes);
}

void RepairedFile::write() const {
    OutputFile(path_).replace(edited_.text);
}

void RepairedFile::tell(const Notes& notes) const {
    for (const std::string& pointer : edited_.renderedAnew)
        notes.add(formatMessage(renderedAnew, path_, pointer));
}

} // namespace specloom::source_edit
