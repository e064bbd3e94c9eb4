#include "openapi_lint/words.h"

#include "foundation/ascii.h"
#include "foundation/utf8.h"

#include <cwctype> // std::wint_t

#include <locale.h> // newlocale, locale_t
#include <utf8cpp/utf8.h>
#include <wctype.h> // iswalnum_l, iswupper_l, towlower_l

namespace specloom::openapi_lint {
namespace {

constexpr std::size_t longestWord = 100;
constexpr char32_t unreadableCharacter = 0xFFFD;
constexpr char32_t typographicApostrophe = 0x2019;

/// Character classes of Unicode, whatever the user's locale is. Null where the system has none by that name;
/// then only ASCII has classes.
locale_t unicode() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

bool isUpper(char32_t c) {
    if (c < 0x80 || unicode() == nullptr)
        return ascii::isUpper(c);
    return iswupper_l(static_cast<std::wint_t>(c), unicode()) != 0;
}

bool isLetter(char32_t c) {
    if (c < 0x80)
        return ascii::isLetter(c);
    const bool isCombining = c >= 0x300 && c <= 0x36F; // an accent is part of its letter
    return isCombining || unicode() == nullptr || iswalpha_l(static_cast<std::wint_t>(c), unicode()) != 0;
}

bool isApostrophe(char32_t c) {
    return c == '\'' || c == typographicApostrophe;
}

/// What a name is made of, letters included.
bool isWordCharacter(char32_t c) {
    return isLetter(c) || ascii::isDigit(c) || c == '_' || c == unreadableCharacter;
}

bool isWhiteSpace(char32_t c) {
    return c <= ' ' || c == 0xA0 || (c >= 0x2000 && c <= 0x200A) || c == 0x3000;
}

/// A cursor over the code points of a text, which has been found to be well-formed.
class Cursor {
  public:
    explicit Cursor(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}
    [[nodiscard]] bool isAtEnd() const { return at_ == end_; }
    [[nodiscard]] const char* at() const { return at_; }
    [[nodiscard]] char32_t peek() const {
        return isAtEnd() ? U' ' : static_cast<char32_t>(utf8::unchecked::peek_next(at_));
    }
    void advance() { utf8::unchecked::next(at_); }

  private:
    const char* at_;
    const char* end_;
};

std::string_view between(const char* begin, const char* end) {
    return {begin, static_cast<std::size_t>(end - begin)};
}

bool isName(std::string_view part) {
    std::size_t letters = 0;
    for (Cursor cursor(part); !cursor.isAtEnd(); cursor.advance()) {
        const char32_t c = cursor.peek();
        if (isApostrophe(c))
            continue;
        if (!isLetter(c) || (letters > 0 && isUpper(c)))
            return true;
        ++letters;
    }
    return letters < 2 || part.size() > longestWord;
}

/// Moves over a part and returns it: word characters with apostrophes between them.
std::string_view readPart(Cursor& cursor) {
    const char* begin = cursor.at();
    const char* end = begin;
    while (isWordCharacter(cursor.peek()) || (end != begin && isApostrophe(cursor.peek()))) {
        const bool belongs = !isApostrophe(cursor.peek());
        cursor.advance();
        if (belongs)
            end = cursor.at();
    }
    return between(begin, end);
}

/// The words of what stands between white space.
void appendWords(std::string_view chunk, std::vector<Word>& words) {
    Cursor cursor(chunk);
    while (!cursor.isAtEnd()) {
        if (!isWordCharacter(cursor.peek())) {
            cursor.advance();
            continue;
        }
        Word word;
        const char* begin = cursor.at();
        const char* end = begin;
        while (true) {
            const std::string_view part = readPart(cursor);
            if (part.empty())
                break;
            end = part.data() + part.size();
            if (isName(part))
                word.isWhole = false;
            else
                word.parts.push_back(part);
            if (cursor.at() != end || cursor.peek() != '-')
                break;
            cursor.advance();
        }
        word.text = between(begin, end);
        if (!word.parts.empty())
            words.push_back(std::move(word));
    }
}

/// Whether an "@" stands between two letters or digits.
bool holdsAddress(std::string_view chunk) {
    const auto isPlain = [](char c) { return isLetter(static_cast<unsigned char>(c)) || ascii::isDigit(c); };
    for (std::size_t at = chunk.find('@'); at != std::string_view::npos; at = chunk.find('@', at + 1))
        if (at > 0 && at + 1 < chunk.size() && isPlain(chunk[at - 1]) && isPlain(chunk[at + 1]))
            return true;
    return false;
}

bool holdsUrl(std::string_view chunk) {
    return chunk.find("://") != std::string_view::npos || chunk.find("www.") != std::string_view::npos ||
           holdsAddress(chunk);
}

} // namespace

std::vector<Word> wordsOf(std::string_view text) {
    std::vector<Word> words;
    text =
        text.substr(0, static_cast<std::size_t>(utf8::find_invalid(text.begin(), text.end()) - text.begin()));
    Cursor cursor(text);
    while (!cursor.isAtEnd()) {
        const char* begin = cursor.at();
        while (!cursor.isAtEnd() && !isWhiteSpace(cursor.peek()))
            cursor.advance();
        const std::string_view chunk = between(begin, cursor.at());
        if (!holdsUrl(chunk))
            appendWords(chunk, words);
        if (!cursor.isAtEnd())
            cursor.advance();
    }
    return words;
}

std::string withSmallInitial(std::string_view word) {
    if (word.empty())
        return {};
    Cursor cursor(word);
    const char32_t initial = cursor.peek();
    cursor.advance();
    std::string result;
    char32_t small = initial;
    if (ascii::isUpper(initial))
        small = initial | 0x20;
    else if (initial >= 0x80 && unicode() != nullptr)
        small = static_cast<char32_t>(towlower_l(static_cast<std::wint_t>(initial), unicode()));
    appendUtf8(small, result);
    return result.append(word.substr(static_cast<std::size_t>(cursor.at() - word.data())));
}

} // namespace specloom::openapi_lint
