#pragma once

#include <string_view> // std::string_view

/// Predicates behind the `format` keyword of JSON Schema, and checks on values of the command line. Each
/// looks at the whole text, gives no reason, throws nothing, and answers in time proportional to the length
/// of the text without recursion (a regular expression: to its size with repeat counts multiplied out, which
/// is limited). Digits and letters are those of ASCII.
namespace specloom {

// Dates and times (RFC 3339, section 5.6), "T" and "Z" in either case. A second of 60 must be a leap second:
// 23:59 UTC, and in a date-time on a day (in UTC) that ended with one. A fraction may have any number of
// digits; the zone may be left out behind a fraction that is zero ("12:00:00.0"), and nowhere else.

[[nodiscard]] bool isDateTime(std::string_view text) noexcept;
[[nodiscard]] bool isDate(std::string_view text) noexcept;
[[nodiscard]] bool isTime(std::string_view text) noexcept;

/// The number of days of a month (1 to 12) of the Gregorian calendar; an unreachable path for any other
/// month.
[[nodiscard]] int daysInMonth(int year, int month);

/// A duration of ISO 8601 in whole numbers: "P" and years, months and days, then "T" and hours, minutes and
/// seconds, each part at most once and at least one of them; or weeks alone. Parts between others may be left
/// out ("P1Y2D").
[[nodiscard]] bool isDuration(std::string_view text) noexcept;

/// An address of a mail box: a dot-atom or a quoted string without escapes, the at sign, and at least one
/// byte. The domain may hold any visible ASCII characters but [ \ ].
[[nodiscard]] bool isEmail(std::string_view text) noexcept;

/// A content transfer encoding of RFC 2045, section 6.1, or RFC 4648, by its name in lower case.
[[nodiscard]] bool isTransferEncoding(std::string_view text) noexcept;

/// Labels of 1 to 63 letters, digits and "-" between dots, each beginning with a letter; the last byte of the
/// name is a letter or a digit.
[[nodiscard]] bool isHostname(std::string_view text) noexcept;

/// Four numbers of 0 to 255 without leading zeros between dots (RFC 3986, section 3.2.2, IPv4address).
[[nodiscard]] bool isIPv4(std::string_view text) noexcept;

/// Groups of 1 to 4 hexadecimal digits between colons, at most one "::", and at the end perhaps an IPv4
/// address (RFC 4291, section 2.2). Eight groups are needed (six in front of an IPv4 address), or a "::"; a
/// "::" may also stand for no group at all.
[[nodiscard]] bool isIPv6(std::string_view text) noexcept;

/// RFC 6901, section 3.
[[nodiscard]] bool isJSONPointer(std::string_view text) noexcept;

/// A non-negative integer, perhaps an index adjustment of a sign and at least two digits, then nothing, "#"
/// or a JSON pointer.
[[nodiscard]] bool isRelativeJSONPointer(std::string_view text) noexcept;

/// A two-letter code of a language (ISO 639-1) in lower case; with a region ("en-US") or in upper case it is
/// none.
[[nodiscard]] bool isLanguageCode(std::string_view text) noexcept;

/// A top-level media type, "/" and a media subtype that are known, in any combination and behind any white
/// space; "*" is known as both. The subtype ends at ";" or white space; what follows is not looked at.
[[nodiscard]] bool isMediaType(std::string_view text) noexcept;

/// A regular expression of ECMA-262 with the flag "u" as regex::Pattern reads it, so that a text has this
/// format when it can stand in `pattern`: without backreferences, and within the limits of a pattern.
[[nodiscard]] bool isRegex(std::string_view text) noexcept;

/// An absolute URL by the parser of the WHATWG URL Standard. A host of more than 4096 bytes may hold ASCII
/// letters, digits and dots only.
[[nodiscard]] bool isURI(std::string_view text) noexcept;

/// A text that the same parser resolves against an https URL, and that holds no backslash.
[[nodiscard]] bool isURIReference(std::string_view text) noexcept;

/// A URI template of RFC 6570.
[[nodiscard]] bool isURITemplate(std::string_view text) noexcept;

/// The form of RFC 9562, section 4, in lower case, with a variant digit of 0, 8, 9, a or b.
[[nodiscard]] bool isUUID(std::string_view text) noexcept;

} // namespace specloom
