#include "jv_generator/formats.h"

#include "foundation/validators/validators.h"
#include "jv_generator/texts.h"

#include <algorithm>        // std::clamp, std::max, std::min
#include <array>            // std::to_array
#include <initializer_list> // std::initializer_list

namespace specloom::jv_generator {

namespace {

constexpr std::string_view lowerHex = "0123456789abcdef";
constexpr std::string_view decimal = "0123456789";
constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

/// The pieces one behind the other. They are drawn in this order, which the operands of "+" need not be.
[[nodiscard]] std::string joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces)
        text += piece;
    return text;
}

/// Letters for what `taken` signs leave of a length; from 3 to 8 where that is open.
[[nodiscard]] std::uint64_t room(RandomEngine& random, const TextLength& length, std::uint64_t taken,
                                 std::uint64_t least = 1) {
    const std::uint64_t min = std::max(least, length.min > taken ? length.min - taken : 0);
    const std::uint64_t max = std::max(min, length.max > taken ? length.max - taken : 0);
    return random.between(std::min(std::max<std::uint64_t>(min, 3), max),
                          std::min(max, std::max<std::uint64_t>(min, 8)));
}

[[nodiscard]] std::string date(RandomEngine& random, const TextLength& /*length*/) {
    const std::uint64_t year = random.between(1990, 2030);
    const std::uint64_t month = random.between(1, 12);
    const auto days =
        static_cast<std::uint64_t>(daysInMonth(static_cast<int>(year), static_cast<int>(month)));
    return std::to_string(year) + '-' + digits(random, month, month, 2) + '-' + digits(random, 1, days, 2);
}

/// With a fraction where the length asks for one.
[[nodiscard]] std::string timeOf(RandomEngine& random, std::uint64_t min) {
    std::string text =
        joined({digits(random, 0, 23, 2), ":", digits(random, 0, 59, 2), ":", digits(random, 0, 59, 2)});
    if (min > text.size() + 1)
        text += '.' + signsOf(random, decimal, std::max<std::uint64_t>(min - text.size() - 2, 1));
    return text + 'Z';
}

[[nodiscard]] std::string time(RandomEngine& random, const TextLength& length) {
    return timeOf(random, length.min);
}

[[nodiscard]] std::string dateTime(RandomEngine& random, const TextLength& length) {
    return joined({date(random, length), "T", timeOf(random, length.min > 11 ? length.min - 11 : 0)});
}

[[nodiscard]] std::string duration(RandomEngine& random, const TextLength& length) {
    if (length.max < 6)
        return 'P' + digits(random, 1, 9, static_cast<int>(std::clamp<std::uint64_t>(length.min, 3, 5)) - 2) +
               'D';
    std::string text = joined({"P", digits(random, 1, 9, 1), "DT", digits(random, 1, 9, 1), "H"});
    if (length.min > text.size())
        text.insert(1, signsOf(random, "123456789", length.min - text.size()));
    return text;
}

/// Labels of at most 63 letters, `length` signs in all.
[[nodiscard]] std::string labels(RandomEngine& random, std::uint64_t length) {
    std::string text;
    while (length > 63) {
        text += word(random, 20) + '.';
        length -= 21;
    }
    return text + word(random, std::max<std::uint64_t>(length, 1));
}

[[nodiscard]] std::string hostname(RandomEngine& random, const TextLength& length) {
    constexpr std::string_view domain = ".example.com";
    if (length.max <= domain.size())
        return labels(random, room(random, length, 0));
    return labels(random, room(random, length, domain.size())).append(domain);
}

[[nodiscard]] std::string idnHostname(RandomEngine& random, const TextLength& length) {
    constexpr std::string_view domain = "ü.example";
    if (length.max < 10)
        return hostname(random, length);
    return labels(random, room(random, length, 9)).append(domain);
}

[[nodiscard]] std::string email(RandomEngine& random, const TextLength& length) {
    const std::string_view domain = length.max < 13 ? "@e.co" : "@example.com";
    const std::uint64_t letters = room(random, length, domain.size());
    if (letters <= 64)
        return word(random, letters).append(domain);
    return joined({word(random, 8), "@", labels(random, letters - 9), ".example.com"});
}

[[nodiscard]] std::string idnEmail(RandomEngine& random, const TextLength& length) {
    if (length.max < 14)
        return email(random, length);
    std::string text = email(random, {length.min > 0 ? length.min - 1 : 0, length.max - 1});
    return text.insert(text.find('@'), "ü");
}

[[nodiscard]] std::string ipv4(RandomEngine& random, const TextLength& length) {
    if (length.min <= 11 && length.max >= 12)
        return "192.0.2." + std::to_string(random.between(1, 254));
    std::string text;
    for (int octet = 0; octet < 4; ++octet)
        text += (octet == 0 ? "" : ".") +
                std::to_string(random.between(length.max < 15 ? 1 : 100, length.max < 15 ? 9 : 255));
    return text;
}

[[nodiscard]] std::string ipv6(RandomEngine& random, const TextLength& length) {
    if (length.max < 14)
        return "::" + signsOf(random, "123456789abcdef", 1);
    std::string text = "2001:db8";
    const std::uint64_t groups = length.min > 14 ? 6 : 1;
    text += groups == 1 ? ":" : "";
    for (std::uint64_t group = 0; group < groups; ++group)
        text += ':' + signsOf(random, "123456789abcdef", 4);
    return text;
}

/// `letters` signs of a path, in pieces.
[[nodiscard]] std::string path(RandomEngine& random, std::uint64_t letters) {
    std::string text;
    while (letters > 12) {
        const std::uint64_t piece = random.between(3, 8);
        text += word(random, piece) + '/';
        letters -= piece + 1;
    }
    return text + word(random, letters);
}

[[nodiscard]] std::string uriBelow(std::string_view base, RandomEngine& random, const TextLength& length,
                                   std::uint64_t codePoints) {
    return std::string(base) + path(random, room(random, length, codePoints));
}

[[nodiscard]] std::string uri(RandomEngine& random, const TextLength& length) {
    constexpr std::string_view base = "https://example.com/";
    if (length.max > base.size())
        return uriBelow(base, random, length, base.size());
    if (length.max > 10)
        return uriBelow("http://e.co/", random, length, 12).substr(0, length.max);
    return "a:" + word(random, room(random, length, 2));
}

[[nodiscard]] std::string uriReference(RandomEngine& random, const TextLength& length) {
    return uriBelow("/", random, length, 1);
}

[[nodiscard]] std::string iri(RandomEngine& random, const TextLength& length) {
    if (length.max < 20)
        return uri(random, length);
    return uriBelow("https://ü.example/", random, length, 18);
}

[[nodiscard]] std::string iriReference(RandomEngine& random, const TextLength& length) {
    return length.max < 4 ? uriReference(random, length) : uriBelow("/ü/", random, length, 3);
}

[[nodiscard]] std::string uriTemplate(RandomEngine& random, const TextLength& length) {
    if (length.max < 6)
        return uriReference(random, length);
    return joined({"/", path(random, room(random, length, 5)), "/{", word(random, 1), "}"});
}

[[nodiscard]] std::string urn(RandomEngine& random, const TextLength& length) {
    return "urn:example:" + word(random, room(random, length, 12));
}

[[nodiscard]] std::string uuid(RandomEngine& random, const TextLength& /*length*/) {
    return joined({signsOf(random, lowerHex, 8), "-", signsOf(random, lowerHex, 4), "-4",
                   signsOf(random, lowerHex, 3), "-", signsOf(random, "89ab", 1),
                   signsOf(random, lowerHex, 3), "-", signsOf(random, lowerHex, 12)});
}

[[nodiscard]] std::string jsonPointer(RandomEngine& random, const TextLength& length) {
    return '/' + path(random, room(random, length, 1));
}

[[nodiscard]] std::string jsonPointerFragment(RandomEngine& random, const TextLength& length) {
    return "#/" + path(random, room(random, length, 2));
}

[[nodiscard]] std::string relativeJSONPointer(RandomEngine& random, const TextLength& length) {
    if (length.max < 3)
        return digits(random, 1, 9, static_cast<int>(std::max<std::uint64_t>(length.min, 1)));
    return joined({digits(random, 0, 3, 1), "/", path(random, room(random, length, 2))});
}

[[nodiscard]] std::string regex(RandomEngine& random, const TextLength& length) {
    if (length.max < 9)
        return word(random, room(random, length, 0));
    return '^' + word(random, room(random, length, 8)) + "[a-z]*$";
}

/// Groups of four of the alphabet of base 64, which need no padding.
[[nodiscard]] std::string base64(RandomEngine& random, const TextLength& length) {
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    const std::uint64_t least = (length.min + 3) / 4;
    const std::uint64_t most = std::max(least, std::min(length.max / 4, std::max<std::uint64_t>(least, 4)));
    const std::uint64_t groups = random.between(std::min(std::max<std::uint64_t>(least, 2), most), most);
    return signsOf(random, alphabet, groups * 4);
}

[[nodiscard]] std::string base16(RandomEngine& random, const TextLength& length) {
    return signsOf(random, "0123456789ABCDEF", (room(random, length, 0, 2) + 1) / 2 * 2);
}

[[nodiscard]] std::string base32(RandomEngine& random, const TextLength& length) {
    return signsOf(random, "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567", (room(random, length, 0, 8) + 7) / 8 * 8);
}

[[nodiscard]] std::string decimalNumber(RandomEngine& random, const TextLength& length) {
    if (length.max < 4)
        return signsOf(random, "123456789", room(random, length, 0));
    std::string text = joined({digits(random, 1, 99, 1), ".", digits(random, 0, 9, 1)});
    if (length.min > text.size())
        text += signsOf(random, decimal, length.min - text.size());
    return text;
}

[[nodiscard]] std::string phoneNumber(RandomEngine& random, const TextLength& length) {
    if (length.max < 12 || length.min > 12)
        return '+' +
               signsOf(random, "123456789",
                       std::clamp<std::uint64_t>(length.max < 12 ? length.max - 1 : length.min - 1, 1, 14));
    return "+120255501" + digits(random, 0, 99, 2);
}

[[nodiscard]] std::string mailDate(RandomEngine& random, const TextLength& /*length*/) {
    constexpr auto months =
        std::to_array<std::string_view>({"Jan", "Mar", "May", "Jul", "Aug", "Oct", "Dec"});
    return joined({digits(random, 1, 31, 2), " ", months[random.below(months.size())], " ",
                   digits(random, 1990, 2030, 4), " ", timeOf(random, 0).substr(0, 8), " +0000"});
}

[[nodiscard]] std::string currency(RandomEngine& random, const TextLength& /*length*/) {
    constexpr auto codes = std::to_array<std::string_view>({"AUD", "BRL", "CHF", "EUR", "GBP", "JPY", "USD"});
    return std::string(codes[random.below(codes.size())]);
}

[[nodiscard]] std::string country(RandomEngine& random, const TextLength& /*length*/) {
    constexpr auto codes = std::to_array<std::string_view>({"AU", "BR", "CH", "DE", "GB", "JP", "US"});
    return std::string(codes[random.below(codes.size())]);
}

[[nodiscard]] std::string colour(RandomEngine& random, const TextLength& /*length*/) {
    return '#' + signsOf(random, lowerHex, 6);
}

[[nodiscard]] std::string password(RandomEngine& random, const TextLength& length) {
    const std::uint64_t signs = room(random, length, 0);
    if (signs < 3)
        return word(random, signs);
    return joined({signsOf(random, capitals, 1), word(random, signs - 2), signsOf(random, decimal, 1)});
}

struct FormatRow {
    std::string_view name;
    TextMaker make;
    bool (*check)(std::string_view) noexcept = nullptr;
};

constexpr auto formatTable = std::to_array<FormatRow>({
    {"base16", base16},
    {"base32", base32},
    {"base64", base64},
    {"base64url", base64},
    {"byte", base64},
    {"color", colour},
    {"currency", currency},
    {"date", date, isDate},
    {"date-time", dateTime, isDateTime},
    {"date-time-rfc-2822", mailDate},
    {"decimal", decimalNumber},
    {"duration", duration, isDuration},
    {"email", email, isEmail},
    {"hostname", hostname, isHostname},
    {"idn-email", idnEmail},
    {"idn-hostname", idnHostname},
    {"ipv4", ipv4, isIPv4},
    {"ipv6", ipv6, isIPv6},
    {"iri", iri},
    {"iri-reference", iriReference},
    {"iso-country-code", country},
    {"iso-date-time", dateTime},
    {"iso-time", time},
    {"json-pointer", jsonPointer, isJSONPointer},
    {"json-pointer-uri-fragment", jsonPointerFragment},
    {"password", password},
    {"phone", phoneNumber},
    {"phone-number", phoneNumber},
    {"regex", regex, isRegex},
    {"relative-json-pointer", relativeJSONPointer, isRelativeJSONPointer},
    {"time", time, isTime},
    {"uri", uri, isURI},
    {"uri-reference", uriReference, isURIReference},
    {"uri-template", uriTemplate, isURITemplate},
    {"url", uri},
    {"urn", urn},
    {"uuid", uuid, isUUID},
});

[[nodiscard]] const FormatRow* findFormat(std::string_view name) {
    for (const FormatRow& row : formatTable) {
        if (row.name == name)
            return &row;
    }
    return nullptr;
}

} // namespace

TextMaker textMakerOf(std::string_view format) {
    const FormatRow* row = findFormat(format);
    return row == nullptr ? nullptr : row->make;
}

bool hasFormat(std::string_view format, std::string_view text) {
    const FormatRow* row = findFormat(format);
    return row == nullptr || row->check == nullptr || row->check(text);
}

} // namespace specloom::jv_generator
