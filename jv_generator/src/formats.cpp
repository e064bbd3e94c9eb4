#include "jv_generator/formats.h"

#include "foundation/validators/validators.h"
#include "jv_generator/texts.h"

#include <algorithm> // std::clamp, std::max, std::min, std::ranges::is_sorted, std::ranges::lower_bound
#include <array>     // std::to_array

namespace specloom::jv_generator {

namespace {

constexpr std::string_view lowerHex = "0123456789abcdef";
constexpr std::string_view hexWithoutZero = "123456789abcdef";
constexpr std::string_view decimal = "0123456789";
constexpr std::string_view decimalWithoutZero = "123456789";
constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

/// Letters for what `taken` signs leave of a length; from 3 to 8 where that is open.
[[nodiscard]] std::uint64_t room(RandomEngine& random, const TextLength& length, std::uint64_t taken,
                                 std::uint64_t least = 1) {
    const std::uint64_t min = std::max(least, length.min > taken ? length.min - taken : 0);
    const std::uint64_t max = std::max(min, length.max > taken ? length.max - taken : 0);
    return random.between(std::min(std::max<std::uint64_t>(min, 3), max),
                          std::min(max, std::max<std::uint64_t>(min, 8)));
}

/// A word that fills what `taken` signs leave.
void addWordIn(RandomEngine& random, const TextLength& length, std::uint64_t taken, std::string& text) {
    addWord(random, room(random, length, taken), text);
}

void addDate(RandomEngine& random, const TextLength& /*length*/, std::string& text) {
    const std::uint64_t year = random.between(1990, 2030);
    const std::uint64_t month = random.between(1, 12);
    const auto days =
        static_cast<std::uint64_t>(daysInMonth(static_cast<int>(year), static_cast<int>(month)));
    addDigits(random, year, year, 4, text);
    text += '-';
    addDigits(random, month, month, 2, text);
    text += '-';
    addDigits(random, 1, days, 2, text);
}

void addClock(RandomEngine& random, std::string& text) {
    addDigits(random, 0, 23, 2, text);
    text += ':';
    addDigits(random, 0, 59, 2, text);
    text += ':';
    addDigits(random, 0, 59, 2, text);
}

/// With a fraction where the length asks for one.
void addTime(RandomEngine& random, const TextLength& length, std::string& text) {
    constexpr std::uint64_t clock = 8;
    addClock(random, text);
    if (length.min > clock + 1) {
        text += '.';
        addSigns(random, decimal, std::max<std::uint64_t>(length.min - clock - 2, 1), text);
    }
    text += 'Z';
}

void addDateTime(RandomEngine& random, const TextLength& length, std::string& text) {
    constexpr std::uint64_t taken = 11;
    addDate(random, length, text);
    text += 'T';
    addTime(random, {length.min > taken ? length.min - taken : 0, length.max}, text);
}

void addDuration(RandomEngine& random, const TextLength& length, std::string& text) {
    constexpr std::uint64_t usual = 6;
    text += 'P';
    if (length.max < usual) {
        addDigits(random, 1, 9, static_cast<int>(std::clamp<std::uint64_t>(length.min, 3, 5)) - 2, text);
        text += 'D';
        return;
    }
    if (length.min > usual)
        addSigns(random, decimalWithoutZero, length.min - usual, text);
    addDigits(random, 1, 9, 1, text);
    text += "DT";
    addDigits(random, 1, 9, 1, text);
    text += 'H';
}

/// Labels of at most 63 letters, `length` signs in all.
void addLabels(RandomEngine& random, std::uint64_t length, std::string& text) {
    while (length > 63) {
        addWord(random, 20, text);
        text += '.';
        length -= 21;
    }
    addWord(random, std::max<std::uint64_t>(length, 1), text);
}

void addHostname(RandomEngine& random, const TextLength& length, std::string& text) {
    constexpr std::string_view domain = ".example.com";
    const bool hasRoom = length.max > domain.size();
    addLabels(random, room(random, length, hasRoom ? domain.size() : 0), text);
    text += hasRoom ? domain : "";
}

void addIDNHostname(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 10)
        return addHostname(random, length, text);
    addLabels(random, room(random, length, 9), text);
    text += "ü.example";
}

/// `inner` stands in front of the at sign and counts as one sign.
void addMailbox(RandomEngine& random, const TextLength& length, std::string_view inner, std::string& text) {
    const std::string_view domain = length.max < 13 ? "@e.co" : "@example.com";
    const std::uint64_t letters = room(random, length, domain.size());
    if (letters <= 64) {
        addWord(random, letters, text);
        text.append(inner).append(domain);
        return;
    }
    addWord(random, 8, text);
    text.append(inner) += '@';
    addLabels(random, letters - 9, text);
    text += ".example.com";
}

void addEmail(RandomEngine& random, const TextLength& length, std::string& text) {
    addMailbox(random, length, "", text);
}

void addIDNEmail(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 14)
        return addEmail(random, length, text);
    addMailbox(random, {length.min > 0 ? length.min - 1 : 0, length.max - 1}, "ü", text);
}

void addIPv4(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.min <= 11 && length.max >= 12) {
        text += "192.0.2.";
        addDigits(random, 1, 254, 1, text);
        return;
    }
    const bool isShort = length.max < 15;
    for (int octet = 0; octet < 4; ++octet) {
        text += octet == 0 ? "" : ".";
        addDigits(random, isShort ? 1 : 100, isShort ? 9 : 255, 1, text);
    }
}

void addIPv6(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 14) {
        text += "::";
        return addSigns(random, hexWithoutZero, 1, text);
    }
    const int groups = length.min > 14 ? 6 : 1;
    text += groups == 1 ? "2001:db8:" : "2001:db8";
    for (int group = 0; group < groups; ++group) {
        text += ':';
        addSigns(random, hexWithoutZero, 4, text);
    }
}

/// `letters` signs of a path, in pieces.
void addPath(RandomEngine& random, std::uint64_t letters, std::string& text) {
    while (letters > 12) {
        const std::uint64_t piece = random.between(3, 8);
        addWord(random, piece, text);
        text += '/';
        letters -= piece + 1;
    }
    addWord(random, letters, text);
}

void addBelow(std::string_view base, RandomEngine& random, const TextLength& length, std::uint64_t codePoints,
              std::string& text) {
    text += base;
    addPath(random, room(random, length, codePoints), text);
}

void addURI(RandomEngine& random, const TextLength& length, std::string& text) {
    constexpr std::string_view base = "https://example.com/";
    constexpr std::string_view shortBase = "http://e.co/";
    if (length.max > base.size())
        return addBelow(base, random, length, base.size(), text);
    if (length.max > shortBase.size())
        return addBelow(shortBase, random, length, shortBase.size(), text);
    if (length.max + 1 >= shortBase.size()) {
        text += shortBase.substr(0, length.max);
        return;
    }
    text += "a:";
    addWordIn(random, length, 2, text);
}

void addURIReference(RandomEngine& random, const TextLength& length, std::string& text) {
    addBelow("/", random, length, 1, text);
}

void addIRI(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 20)
        return addURI(random, length, text);
    addBelow("https://ü.example/", random, length, 18, text);
}

void addIRIReference(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 4)
        return addURIReference(random, length, text);
    addBelow("/ü/", random, length, 3, text);
}

void addURITemplate(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 6)
        return addURIReference(random, length, text);
    addBelow("/", random, length, 5, text);
    text += "/{";
    addWord(random, 1, text);
    text += '}';
}

void addURN(RandomEngine& random, const TextLength& length, std::string& text) {
    text += "urn:example:";
    addWordIn(random, length, 12, text);
}

void addUUID(RandomEngine& random, const TextLength& /*length*/, std::string& text) {
    const auto digits = [&](std::uint64_t count) { addSigns(random, lowerHex, count, text); };
    digits(8);
    text += '-';
    digits(4);
    text += "-4";
    digits(3);
    text += '-';
    addSigns(random, "89ab", 1, text);
    digits(3);
    text += '-';
    digits(12);
}

void addJSONPointer(RandomEngine& random, const TextLength& length, std::string& text) {
    addBelow("/", random, length, 1, text);
}

void addJSONPointerFragment(RandomEngine& random, const TextLength& length, std::string& text) {
    addBelow("#/", random, length, 2, text);
}

void addRelativeJSONPointer(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 3)
        return length.min < 2 ? addDigits(random, 1, 9, 1, text) : addDigits(random, 10, 99, 1, text);
    addDigits(random, 0, 3, 1, text);
    addBelow("/", random, length, 2, text);
}

void addRegex(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 9)
        return addWordIn(random, length, 0, text);
    text += '^';
    addWordIn(random, length, 8, text);
    text += "[a-z]*$";
}

/// Groups of four of the alphabet of base 64, which need no padding.
void addBase64(RandomEngine& random, const TextLength& length, std::string& text) {
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    const std::uint64_t least = (length.min + 3) / 4;
    const std::uint64_t most = std::max(least, std::min(length.max / 4, std::max<std::uint64_t>(least, 4)));
    const std::uint64_t groups = random.between(std::min(std::max<std::uint64_t>(least, 2), most), most);
    addSigns(random, alphabet, groups * 4, text);
}

void addBase16(RandomEngine& random, const TextLength& length, std::string& text) {
    addSigns(random, "0123456789ABCDEF", (room(random, length, 0, 2) + 1) / 2 * 2, text);
}

void addBase32(RandomEngine& random, const TextLength& length, std::string& text) {
    addSigns(random, "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567", (room(random, length, 0, 8) + 7) / 8 * 8, text);
}

void addDecimal(RandomEngine& random, const TextLength& length, std::string& text) {
    if (length.max < 4)
        return addSigns(random, decimalWithoutZero, room(random, length, 0), text);
    const std::uint64_t whole = random.between(1, 99);
    addDigits(random, whole, whole, 1, text);
    text += '.';
    const std::uint64_t usual = whole < 10 ? 3 : 4;
    addSigns(random, decimal, length.min > usual ? length.min - usual + 1 : 1, text);
}

void addPhoneNumber(RandomEngine& random, const TextLength& length, std::string& text) {
    text += '+';
    if (length.max >= 12 && length.min <= 12) {
        text += "120255501";
        return addDigits(random, 0, 99, 2, text);
    }
    const std::uint64_t digits = length.max < 12 ? length.max : length.min;
    addSigns(random, decimalWithoutZero, std::clamp<std::uint64_t>(digits, 2, 15) - 1, text);
}

void addMailDate(RandomEngine& random, const TextLength& /*length*/, std::string& text) {
    constexpr auto months =
        std::to_array<std::string_view>({"Jan", "Mar", "May", "Jul", "Aug", "Oct", "Dec"});
    addDigits(random, 1, 31, 2, text);
    text += ' ';
    text += months[random.below(months.size())];
    text += ' ';
    addDigits(random, 1990, 2030, 4, text);
    text += ' ';
    addClock(random, text);
    text += " +0000";
}

void addCurrency(RandomEngine& random, const TextLength& /*length*/, std::string& text) {
    constexpr auto codes = std::to_array<std::string_view>({"AUD", "BRL", "CHF", "EUR", "GBP", "JPY", "USD"});
    text += codes[random.below(codes.size())];
}

void addCountry(RandomEngine& random, const TextLength& /*length*/, std::string& text) {
    constexpr auto codes = std::to_array<std::string_view>({"AU", "BR", "CH", "DE", "GB", "JP", "US"});
    text += codes[random.below(codes.size())];
}

void addColour(RandomEngine& random, const TextLength& /*length*/, std::string& text) {
    text += '#';
    addSigns(random, lowerHex, 6, text);
}

void addPassword(RandomEngine& random, const TextLength& length, std::string& text) {
    const std::uint64_t signs = room(random, length, 0);
    if (signs < 3)
        return addWord(random, signs, text);
    addSigns(random, capitals, 1, text);
    addWord(random, signs - 2, text);
    addSigns(random, decimal, 1, text);
}

struct FormatRow {
    std::string_view name;
    TextMaker make;
    TextCheck check = nullptr;
};

constexpr auto formatTable = std::to_array<FormatRow>({
    {"base16", addBase16},
    {"base32", addBase32},
    {"base64", addBase64},
    {"base64url", addBase64},
    {"byte", addBase64},
    {"color", addColour},
    {"currency", addCurrency},
    {"date", addDate, isDate},
    {"date-time", addDateTime, isDateTime},
    {"date-time-rfc-2822", addMailDate},
    {"decimal", addDecimal},
    {"duration", addDuration, isDuration},
    {"email", addEmail, isEmail},
    {"hostname", addHostname, isHostname},
    {"idn-email", addIDNEmail},
    {"idn-hostname", addIDNHostname},
    {"ipv4", addIPv4, isIPv4},
    {"ipv6", addIPv6, isIPv6},
    {"iri", addIRI},
    {"iri-reference", addIRIReference},
    {"iso-country-code", addCountry},
    {"iso-date-time", addDateTime},
    {"iso-time", addTime},
    {"json-pointer", addJSONPointer, isJSONPointer},
    {"json-pointer-uri-fragment", addJSONPointerFragment},
    {"password", addPassword},
    {"phone", addPhoneNumber},
    {"phone-number", addPhoneNumber},
    {"regex", addRegex, isRegex},
    {"relative-json-pointer", addRelativeJSONPointer, isRelativeJSONPointer},
    {"time", addTime, isTime},
    {"uri", addURI, isURI},
    {"uri-reference", addURIReference, isURIReference},
    {"uri-template", addURITemplate, isURITemplate},
    {"url", addURI},
    {"urn", addURN},
    {"uuid", addUUID, isUUID},
});

static_assert(std::ranges::is_sorted(formatTable, {}, &FormatRow::name));

[[nodiscard]] const FormatRow* findFormat(std::string_view name) {
    const auto* const row = std::ranges::lower_bound(formatTable, name, {}, &FormatRow::name);
    return row != formatTable.end() && row->name == name ? row : nullptr;
}

} // namespace

TextMaker textMakerOf(std::string_view format) {
    const FormatRow* row = findFormat(format);
    return row == nullptr ? nullptr : row->make;
}

TextCheck textCheckOf(std::string_view format) {
    const FormatRow* row = findFormat(format);
    return row == nullptr ? nullptr : row->check;
}

std::vector<std::string_view> formatNames() {
    std::vector<std::string_view> names;
    names.reserve(std::size(formatTable));
    for (const FormatRow& row : formatTable)
        names.push_back(row.name);
    return names;
}

} // namespace specloom::jv_generator
