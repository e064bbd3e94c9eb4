#include "foundation/language_names.h"
#include "foundation/validators/validators.h"
#include "test_support/format_validators.h"

#include <cstddef>     // std::size_t
#include <optional>    // std::nullopt
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::pair
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom {
namespace {

using test_support::formatValidators;

/// The names of all predicates that accept `text`, with spaces between.
std::string acceptedAs(std::string_view text) {
    std::string names;
    for (const auto& [name, predicate] : formatValidators()) {
        if (predicate(text))
            names += (names.empty() ? "" : " ") + name;
    }
    return names;
}

TEST(Validators, knowTheFormsOfTheirFormats) {
    struct Case {
        std::string format;
        std::vector<std::string_view> good;
        std::vector<std::string_view> bad;
    };
    const std::vector<Case> cases = {
        {"date", {"2024-02-29", "0000-01-01"}, {"2023-02-29", "2024-01-00", "2024-1-01", "2024-01-01T"}},
        {"date-time",
         {"2016-12-31T23:59:60Z", "1972-06-30t23:59:60.25z", "2020-01-01T00:00:00.0", "2020-01-01T00:00:00.",
          "2017-01-01T00:59:60+01:00", "2016-12-31T18:59:60-05:00"},
         {"2017-12-31T23:59:60Z", "2016-12-31T00:59:60+01:00", "2020-01-01T00:00:00", "2020-01-01T00:00:00.5",
          "2020-01-01 00:00:00Z", "2020-01-00T00:00:00Z", "2020-01-01", "2020-01-01T00:00:00.0Z0",
          "2020-01-01T00:00:00+24:00", "2020-01-01T00:00:00+0000"}},
        {"time", {"23:59:60+00:00", "00:29:60+00:30", "12:00:00.000"}, {"12:00:60Z", "12:00Z", "24:00:00Z"}},
        {"duration",
         {"P1Y2M", "P2W", "P1Y2D", "PT1H2S", "P1DT1S"},
         {"", "P", "PT", "P1YT", "PW", "P1W1D", "P1M1Y", "P1H", "PT1D", "P1Y1Y", "P1TT1H", "p1Y", "P1.5D"}},
        {"email",
         {"a@b", "a.b@c", "\"a b\\\"@c", "a@b@c", "\"\"@c", "o'neil+x@^c"},
         {"a..b@c", "@c", "a@", "a", "\"a\"b@c", "\"a", "a@b c", "a@[c]", "a@\xC3\xA4", ".a@b", "a.@b"}},
        {"hostname", {"a", "a-.b", "A1.b-c.d9"}, {"", "1a", "a.", ".a", "a..b", "a-", "a_b", "a.-b"}},
        {"ipv4",
         {"0.0.0.0", "255.249.199.9"},
         {"256.0.0.0", "01.0.0.0", "1.2.3", "1.2.3.4.5", "1.2.3.4.", ""}},
        {"ipv6",
         {"::1", "1::", "::", "1:2:3:4:5:6:7:8", "1:2:3:4:5:6:7:8::", "1::2:3:4:5:6:7:8",
          "1:2:3:4:5:6:1.2.3.4", "::1.2.3.4"},
         {"", ":", ":::", "1:2:3:4:5:6:7:8:9", "1:2:3:4:5:6:7:8:9::", "1::2::3", "12345::", "1:", ":1",
          "1:2:3:4:5:1.2.3.4", "1.2.3.4", "::1.2.3", "::1.2.3.4:5", "::1.2.3.256", "fe80::1%eth0"}},
        {"json-pointer", {"", "/", "/a~0~1/b//"}, {"a", "#/a", "/~", "/~2", "/a~~0"}},
        {"relative-json-pointer",
         {"0", "10#", "1+10/a", "1-12#", "2/"},
         {"", "01", "1+1", "1+01", "1+", "-1", "1##", "1a", "1#/a"}},
        {"language", {"aa", "en", "zu"}, {"EN", "xx", "en-US", "eng", ""}},
        {"media-type",
         {"application/json; charset=utf-8", "text/pdf", " \t*/*", "text/plain x", "image/png;"},
         {"application/x-unknown", "json", "text/", "/json", "text /plain", "", "Text/plain",
          "text/plain/x"}},
        {"transfer-encoding", {"7bit", "base32"}, {"", "BASE64", "base64 "}},
        {"uuid",
         {"00000000-0000-0000-0000-000000000000", "2eb8aa08-aa98-11ea-b4aa-73b441d16380"},
         {"2EB8AA08-aa98-11ea-b4aa-73b441d16380", "2eb8aa08-aa98-11ea-c4aa-73b441d16380",
          "2eb8aa08-aa98-11ea-b4aa-73b441d1638", "2eb8aa08-aa98-11ea-b4aa_73b441d16380"}},
        {"uri",
         {"https://a/b?c#d", "urn:a:b", "HTTP:a"},
         {"a", "//a/b", "http://", "http://a:b/", "", "http://\xFF"}},
        {"uri-template", {"", "a{/b*,c:3}", "{?d}"}, {"{", "a}", "{a:0}", "%"}},
        {"uri-reference",
         {"", "a", "../b", "//a/b", "#c", "https://a"},
         {"a\\b", "https://a:b/", "//", "\xFF"}},
        {"regex",
         {"", "(?<n>a)(?<=b)\\p{L}[\\d-z]", "\xC3\xA9+[\xC3\xA0-\xC3\xBC]", "a{2,99999999999999999999999}",
          "]}"},
         {"(", "a)", "\\a", "(?i)a", "a{2,1}", "(a)\\1", "x{1000000}", "\xFF"}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.format);
        const auto predicate = formatValidators().at(one.format);
        for (const std::string_view text : one.good)
            EXPECT_TRUE(predicate(text)) << text;
        for (const std::string_view text : one.bad)
            EXPECT_FALSE(predicate(text)) << text;
    }
}

TEST(Validators, takeLongHostileTexts) {
    constexpr std::size_t million = 1'000'000;
    const auto repeated = [](std::string_view unit) {
        std::string text;
        while (text.size() < million)
            text += unit;
        return text;
    };
    struct Case {
        std::string start;
        std::string repeat;
        std::string end;
        std::string accepted;
    };
    const std::vector<Case> cases = {
        {"", "1", "", "relative-json-pointer uri-reference uri-template"},
        {"", ".", "", "uri-reference uri-template"},
        {"", "a", "", "uri-reference uri-template"},
        {"", "%", "", "uri-reference"},
        {"", "a.", "a", "hostname uri-reference uri-template"},
        {"", "(", "", "uri-reference uri-template"},
        {repeated("(?:"), ")", "", "uri-reference uri-template"},
        {"", "[", "", "uri-reference uri-template"},
        {"[", "a", "]", "regex uri-reference uri-template"},
        {"", "a|", "", "uri-reference"},
        {"", "/", "", "json-pointer uri-template"},
        {"", "~0", "", "uri-reference uri-template"},
        {"/", "~0", "", "json-pointer uri-reference uri-template"},
        {"P", "1", "Y", "duration uri-reference uri-template"},
        {"12:00:00.", "1", "Z", "time uri-reference uri-template"},
        {"1:2:3:4:5:6:7:", "a", "", "uri-reference uri-template"},
        {"", "1.", "", "uri-reference uri-template"},
        {"a@", "a", "", "email uri-reference uri-template"},
        {"\"", "a", "\"@b", "email uri-reference"},
        {"text/", "a", "", "uri-reference uri-template"},
        {"text/plain;", "a", "", "media-type uri-reference uri-template"},
        {"http:", "%", "", ""},
        {"http://a/", "../", "", "uri uri-reference uri-template"},
        {"http://", "a@", "b", "uri uri-reference uri-template"},
        {"http://", "1.", "1", "uri-template"},
        {"http://", "a.", "a", "uri uri-reference uri-template"},
        {"http://a/", "xn--0x", "", "uri uri-reference uri-template"},
        {"urn:", "xn--0x%20", "", "uri uri-reference uri-template"},
        {"/", "xn--0x", "", "json-pointer uri-reference uri-template"},
        // Names that would take minutes to decode.
        {"http://xn--", "0x", "", "uri-template"},
        {" H\nttp:/\t/a@xn--", "0x", "?b", ""},
        {"//xn--", "0x", "", "json-pointer uri-template"},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.start.substr(0, 20) + " " + one.repeat + "... " + one.end);
        EXPECT_EQ(acceptedAs(one.start + repeated(one.repeat) + one.end), one.accepted);
    }
}

TEST(LanguageName, isTheSpeakersOwn) {
    for (const auto& [code, name] : std::vector<std::pair<std::string_view, std::string_view>>{
             {"aa", "Qafar af"}, {"de", "Deutsch"}, {"pl", "Polski"}, {"zh", "中文"}, {"zu", "isiZulu"}})
        EXPECT_EQ(languageName(code), name);
    for (const std::string_view code : {"", "xx", "DE", "de-AT", "zz", "d"}) {
        EXPECT_EQ(languageName(code), std::nullopt) << code;
        EXPECT_FALSE(isLanguageCode(code)) << code;
    }
}

TEST(Validators, daysInMonthFollowTheGregorianCalendar) {
    const std::vector<int> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(daysInMonth(2023, month), days[static_cast<std::size_t>(month - 1)]) << month;
    EXPECT_EQ(daysInMonth(2000, 2), 29);
    EXPECT_EQ(daysInMonth(1900, 2), 28);
    EXPECT_DEATH(static_cast<void>(daysInMonth(2023, 13)), "Unreachable code");
}

} // namespace
} // namespace specloom
