#include "egret/checks/unescaped_dot.h"

#include "egret/analysis/tree.h"
#include "foundation/ascii.h"

#include <algorithm>   // std::ranges::all_of, std::ranges::find
#include <array>       // std::array
#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;

constexpr std::array<std::string_view, 16> topLevelDomains{"app", "cloud", "co",  "com",  "de",  "dev",
                                                           "edu", "eu",    "gov", "info", "int", "io",
                                                           "net", "org",   "uk",  "us"};

constexpr std::array<std::string_view, 36> fileExtensions{
    "avif", "bmp", "bz2", "csv",  "css", "doc",  "docx", "gif",  "gz",  "htm",  "html", "ico",
    "jpeg", "jpg", "js",  "json", "md",  "mov",  "mp3",  "mp4",  "pdf", "png",  "ppt",  "pptx",
    "svg",  "tar", "tif", "tiff", "tsv", "webp", "xls",  "xlsx", "xml", "yaml", "yml",  "zip"};

using Words = std::span<const std::string_view>;

bool isOneOf(Words words, std::string_view word) {
    return std::ranges::find(words, word) != words.end();
}

/// Dots of one sequence.
class Dots {
  public:
    Dots(const Subject& subject, std::span<const regex::Node> parts, bool isLast, Findings& findings)
        : subject_(subject), parts_(parts), isLast_(isLast), findings_(findings) {}

    void find() {
        for (std::size_t i = 0; i < parts_.size(); ++i)
            if (isDot(i))
                judge(i);
    }

  private:
    [[nodiscard]] bool isDot(std::size_t index) const {
        return parts_[index].kind == Kind::Class && subject_.textOf(parts_[index]) == ".";
    }

    void judge(std::size_t index) {
        const char* of = nullptr;
        if (isBeforeExtension(index))
            of = "a file extension";
        else if (isInHost(index))
            of = "a host name";
        else if (isBetween(index))
            of = "a number or name";
        if (of != nullptr)
            findings_.add(parts_[index].begin,
                          std::string("'.' takes any character: the dot of ") + of + " is written '\\.'");
    }

    [[nodiscard]] bool isLiteral(std::size_t index) const {
        return parts_[index].kind == Kind::Character &&
               (ascii::isAlphanumeric(parts_[index].value) || parts_[index].value == '-');
    }

    /// The letters, digits and hyphens from there on.
    [[nodiscard]] std::string wordAt(std::size_t index) const {
        std::string word;
        for (; index < parts_.size() && isLiteral(index); ++index)
            word += static_cast<char>(parts_[index].value);
        return word;
    }
    /// The same that end there.
    [[nodiscard]] std::string wordBefore(std::size_t index) const {
        while (index > 0 && isLiteral(index - 1))
            --index;
        return wordAt(index);
    }

    /// Whether one of the words stands there, or several of them in a group to choose from, and nothing else
    /// up to the end of the pattern.
    [[nodiscard]] bool wordsFollow(std::size_t index, Words words, bool toTheEnd) const {
        if (index == parts_.size())
            return false;
        const std::string word = wordAt(index);
        std::size_t behind = index + std::max<std::size_t>(word.size(), 1);
        if (word.empty()) {
            const std::span<const regex::Node> choice = alternativesOf(withoutGroups(parts_[index]));
            if (parts_[index].kind != Kind::Group ||
                !std::ranges::all_of(choice,
                                     [&](const regex::Node& one) { return isOneOf(words, literalOf(one)); }))
                return false;
        } else if (!isOneOf(words, word)) {
            return false;
        }
        if (behind < parts_.size() && parts_[behind].kind == Kind::TextEnd)
            ++behind;
        return !toTheEnd || (isLast_ && behind == parts_.size());
    }

    [[nodiscard]] bool isBeforeExtension(std::size_t index) const {
        return wordsFollow(index + 1, fileExtensions, true);
    }

    [[nodiscard]] bool isInHost(std::size_t index) const {
        const std::string before = wordBefore(index);
        if (before == "www")
            return true;
        if (before.empty())
            return false;
        std::size_t next = index + 1;
        if (wordsFollow(next, topLevelDomains, false))
            return true;
        // The names up to the last one, over further dots, escaped or not.
        std::string word = wordAt(next);
        while (!word.empty()) {
            next += word.size();
            const bool dot =
                next < parts_.size() &&
                (isDot(next) || (parts_[next].kind == Kind::Character && parts_[next].value == '.'));
            if (!dot)
                return false;
            if (wordsFollow(next + 1, topLevelDomains, false))
                return true;
            word = wordAt(++next);
        }
        return false;
    }

    /// Whether it stands between digits, or repeats of classes without a dot: "[0-9]+.[0-9]+".
    [[nodiscard]] bool isBetween(std::size_t index) const {
        if (index == 0 || index + 1 == parts_.size())
            return false;
        const regex::Node& left = parts_[index - 1];
        const regex::Node& right = parts_[index + 1];
        if (isDigits(repeatedIn(left), subject_.tree) && isDigits(repeatedIn(right), subject_.tree))
            return true;
        return isNameLike(left) && isNameLike(right);
    }

    [[nodiscard]] bool isNameLike(const regex::Node& node) const {
        if (node.kind != Kind::Repetition || node.max == 1 || !isNarrow(repeatedIn(node), subject_.tree))
            return false;
        return std::ranges::none_of(
            subject_.tree.sets[repeatedIn(node).value].ranges(),
            [](const regex::CodePointRange& range) { return range.first <= '.' && range.last >= '.'; });
    }

    const Subject& subject_;
    std::span<const regex::Node> parts_;
    bool isLast_; ///< nothing follows the sequence
    Findings& findings_;
};

void visitDots(const Subject& subject, const regex::Node& node, bool isLast, Findings& findings) {
    if (node.kind == Kind::Sequence || node.kind == Kind::Class)
        Dots(subject, partsOf(node), isLast, findings).find();
    for (const regex::Node& child : node.children) {
        const bool lastOfSequence = node.kind != Kind::Sequence || &child == &node.children.back() ||
                                    (&child + 1)->kind == Kind::TextEnd;
        visitDots(subject, child, isLast && lastOfSequence, findings);
    }
}

} // namespace

void findUnescapedDot(const Subject& subject, Findings& findings) {
    visitDots(subject, subject.tree.root, true, findings);
}

} // namespace specloom::egret::checks
