#include "jv_generator/texts.h"

#include <algorithm> // std::min

namespace specloom::jv_generator {

namespace {

constexpr std::string_view consonants = "bcdfghjklmnprstvwz";
constexpr std::string_view vowels = "aeiou";
constexpr std::uint64_t longestWord = 10;

[[nodiscard]] char oneOf(RandomEngine& random, std::string_view alphabet) {
    return alphabet[random.below(alphabet.size())];
}

void appendWord(RandomEngine& random, std::uint64_t letters, std::string& text) {
    bool isVowel = random.below(4) == 0;
    for (; letters > 0; --letters, isVowel = !isVowel)
        text += oneOf(random, isVowel ? vowels : consonants);
}

} // namespace

std::string word(RandomEngine& random, std::uint64_t letters) {
    std::string text;
    text.reserve(letters);
    appendWord(random, letters, text);
    return text;
}

std::string word(RandomEngine& random, std::uint64_t min, std::uint64_t max) {
    return word(random, random.between(min, max));
}

std::string prose(RandomEngine& random, std::uint64_t length) {
    std::string text;
    text.reserve(length);
    while (length > longestWord + 3) { // so that no blank is at the end
        const std::uint64_t letters = random.between(3, longestWord - 1);
        appendWord(random, letters, text);
        text += ' ';
        length -= letters + 1;
    }
    appendWord(random, length, text);
    return text;
}

std::string signsOf(RandomEngine& random, std::string_view alphabet, std::uint64_t count) {
    std::string text;
    text.reserve(count);
    for (; count > 0; --count)
        text += oneOf(random, alphabet);
    return text;
}

std::string digits(RandomEngine& random, std::uint64_t min, std::uint64_t max, int count) {
    std::string text = std::to_string(random.between(min, max));
    if (text.size() < static_cast<std::size_t>(count))
        text.insert(0, static_cast<std::size_t>(count) - text.size(), '0');
    return text;
}

} // namespace specloom::jv_generator
