#include "jv_generator/texts.h"

#include <algorithm> // std::min
#include <array>     // std::array
#include <charconv>  // std::to_chars
#include <cstring>   // std::memcpy

namespace specloom::jv_generator {

namespace {

constexpr std::string_view consonants = "bcdfghjklmnprstvwz";
constexpr std::string_view vowels = "aeiou";
constexpr std::uint64_t longestWord = 10;

/// A consonant and a vowel each, by one number. A draw costs more than taking it apart, so one is made for
/// four of them.
constexpr std::uint64_t syllables = consonants.size() * vowels.size();
constexpr std::uint64_t syllablesOfDraw = 4;
constexpr std::uint64_t lettersOfDraw = 2 * syllablesOfDraw;
/// One word in so many begins with a vowel.
constexpr std::uint64_t rareVowel = 4;

[[nodiscard]] constexpr std::uint64_t power(std::uint64_t base, int exponent) {
    std::uint64_t result = 1;
    for (; exponent > 0; --exponent)
        result *= base;
    return result;
}

using Syllable = std::array<char, 2>;

constexpr auto syllableTable = [] {
    std::array<Syllable, syllables> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = {consonants[i / vowels.size()], vowels[i % vowels.size()]};
    return table;
}();

/// The letters that a number of syllables stands for. Both halves are taken apart side by side.
void spell(std::uint64_t drawn, std::array<char, lettersOfDraw>& letters) {
    constexpr std::uint64_t pair = syllables * syllables;
    const std::uint64_t low = drawn % pair;
    const std::uint64_t high = drawn / pair;
    const std::array<std::uint64_t, syllablesOfDraw> numbers = {low % syllables, low / syllables,
                                                                high % syllables, high / syllables};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        std::memcpy(&letters[2 * i], &syllableTable[numbers[i]], sizeof(Syllable));
}

} // namespace

void addWord(RandomEngine& random, std::uint64_t letters, std::string& text) {
    constexpr std::uint64_t drawnAtOnce = power(syllables, syllablesOfDraw);
    if (letters == 0)
        return;
    std::array<char, lettersOfDraw> drawn{};
    std::uint64_t number = random.below(rareVowel * drawnAtOnce);
    std::size_t from = number % rareVowel == 0 ? 1 : 0; // begins with the vowel
    number /= rareVowel;
    for (;;) {
        spell(number, drawn);
        const std::size_t taken = std::min<std::uint64_t>(letters, lettersOfDraw - from);
        text.append(drawn.data() + from, taken);
        letters -= taken;
        if (letters == 0)
            return;
        from = 0;
        number = random.below(drawnAtOnce);
    }
}

void addWord(RandomEngine& random, std::uint64_t min, std::uint64_t max, std::string& text) {
    addWord(random, random.between(min, max), text);
}

void addProse(RandomEngine& random, std::uint64_t length, std::string& text) {
    while (length > longestWord + 3) { // so that no blank is at the end
        const std::uint64_t letters = random.between(3, longestWord - 1);
        addWord(random, letters, text);
        text += ' ';
        length -= letters + 1;
    }
    addWord(random, length, text);
}

/// Several signs by one number, as many as a draw has room for.
void addSigns(RandomEngine& random, std::string_view alphabet, std::uint64_t count, std::string& text) {
    constexpr std::uint64_t roomOfDraw = std::uint64_t{1} << 28;
    while (count > 0) {
        std::uint64_t signs = 1;
        std::uint64_t bound = alphabet.size();
        while (signs < count && bound * alphabet.size() <= roomOfDraw && alphabet.size() > 1) {
            bound *= alphabet.size();
            ++signs;
        }
        std::uint64_t number = random.below(bound);
        count -= signs;
        for (; signs > 0; --signs) {
            text += alphabet[number % alphabet.size()];
            number /= alphabet.size();
        }
    }
}

void addDigits(RandomEngine& random, std::uint64_t min, std::uint64_t max, int count, std::string& text) {
    if (count == 2 && max < 100) {
        const std::uint64_t number = random.between(min, max);
        text += static_cast<char>('0' + number / 10);
        text += static_cast<char>('0' + number % 10);
        return;
    }
    std::array<char, 20> digits{}; // of 64 bits
    char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), random.between(min, max)).ptr;
    for (auto missing = count - (end - digits.data()); missing > 0; --missing)
        text += '0';
    text.append(digits.data(), end);
}

} // namespace specloom::jv_generator
