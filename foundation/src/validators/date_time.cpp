#include "foundation/ascii.h"
#include "foundation/unreachable.h"
#include "foundation/validators/validators.h"

#include <algorithm>   // std::all_of, std::find
#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom {
namespace {

struct Date {
    int year = 0;
    int month = 0;
    int day = 0;
};

constexpr int minutesPerDay = 24 * 60;

constexpr std::array yearsWithLeapSecondInJune = {1972, 1981, 1982, 1983, 1985, 1992,
                                                  1993, 1994, 1997, 2012, 2015};
constexpr std::array yearsWithLeapSecondInDecember = {1972, 1973, 1974, 1975, 1976, 1977, 1978, 1979,
                                                      1987, 1989, 1990, 1995, 1998, 2005, 2008, 2016};

template <typename Years>
bool holds(const Years& years, int year) {
    return std::find(years.begin(), years.end(), year) != years.end();
}

bool endsWithLeapSecond(const Date& date) {
    if (date.month == 6 && date.day == 30)
        return holds(yearsWithLeapSecondInJune, date.year);
    return date.month == 12 && date.day == 31 && holds(yearsWithLeapSecondInDecember, date.year);
}

Date dayBefore(const Date& date) {
    if (date.day > 1)
        return {date.year, date.month, date.day - 1};
    if (date.month > 1)
        return {date.year, date.month - 1, daysInMonth(date.year, date.month - 1)};
    return {date.year - 1, 12, 31};
}

Date dayAfter(const Date& date) {
    if (date.day < daysInMonth(date.year, date.month))
        return {date.year, date.month, date.day + 1};
    if (date.month < 12)
        return {date.year, date.month + 1, 1};
    return {date.year + 1, 1, 1};
}

/// Reads fields off the front of a text.
class FieldReader {
  public:
    explicit FieldReader(std::string_view text) : rest_(text) {}

    /// The number of exactly `digits` digits that stands next, when it is in the range.
    std::optional<int> number(std::size_t digits, int least, int most) {
        if (rest_.size() < digits)
            return std::nullopt;
        int value = 0;
        for (const char byte : rest_.substr(0, digits)) {
            if (!ascii::isDigit(byte))
                return std::nullopt;
            value = value * 10 + (byte - '0');
        }
        rest_.remove_prefix(digits);
        if (value < least || value > most)
            return std::nullopt;
        return value;
    }

    /// Steps over the next byte when it is one of `bytes`.
    bool take(std::string_view bytes) {
        if (rest_.empty() || bytes.find(rest_.front()) == std::string_view::npos)
            return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// Steps over all digits that stand next, and returns them.
    std::string_view digits() {
        std::size_t count = 0;
        while (count < rest_.size() && ascii::isDigit(rest_[count]))
            ++count;
        const std::string_view found = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return found;
    }

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

  private:
    std::string_view rest_;
};

std::optional<Date> readDate(FieldReader& reader) {
    const std::optional<int> year = reader.number(4, 0, 9999);
    if (!year || !reader.take("-"))
        return std::nullopt;
    const std::optional<int> month = reader.number(2, 1, 12);
    if (!month || !reader.take("-"))
        return std::nullopt;
    const std::optional<int> day = reader.number(2, 1, daysInMonth(*year, *month));
    if (!day)
        return std::nullopt;
    return Date{*year, *month, *day};
}

/// The zone as minutes east of UTC. A missing one counts as UTC behind a fraction of zero.
std::optional<int> readZone(FieldReader& reader, bool mayBeMissing) {
    if (reader.atEnd())
        return mayBeMissing ? std::optional<int>(0) : std::nullopt;
    if (reader.take("Zz"))
        return 0;
    const bool east = reader.take("+");
    if (!east && !reader.take("-"))
        return std::nullopt;
    const std::optional<int> hour = reader.number(2, 0, 23);
    if (!hour || !reader.take(":"))
        return std::nullopt;
    const std::optional<int> minute = reader.number(2, 0, 59);
    if (!minute)
        return std::nullopt;
    const int offset = *hour * 60 + *minute;
    return east ? offset : -offset;
}

/// Whether a second of 60 is a leap second. `minute` counts from midnight at the place `zone` east of UTC.
bool isLeapSecond(int minute, int zone, const std::optional<Date>& date) {
    const int inUtc = minute - zone;
    if ((inUtc + minutesPerDay) % minutesPerDay != minutesPerDay - 1)
        return false;
    if (!date)
        return true;
    if (inUtc < 0)
        return endsWithLeapSecond(dayBefore(*date));
    return endsWithLeapSecond(inUtc < minutesPerDay ? *date : dayAfter(*date));
}

/// Whether the rest of a text is a time. Without a date any 23:59:60 UTC passes.
bool isTimeOf(FieldReader& reader, const std::optional<Date>& date) {
    const std::optional<int> hour = reader.number(2, 0, 23);
    if (!hour || !reader.take(":"))
        return false;
    const std::optional<int> minute = reader.number(2, 0, 59);
    if (!minute || !reader.take(":"))
        return false;
    const std::optional<int> second = reader.number(2, 0, 60);
    if (!second)
        return false;
    bool zoneMayBeMissing = false;
    if (reader.take(".")) {
        const std::string_view fraction = reader.digits();
        zoneMayBeMissing =
            std::all_of(fraction.begin(), fraction.end(), [](char digit) { return digit == '0'; });
    }
    const std::optional<int> zone = readZone(reader, zoneMayBeMissing);
    if (!zone || !reader.atEnd())
        return false;
    return *second < 60 || isLeapSecond(*hour * 60 + *minute, *zone, date);
}

} // namespace

bool isDateTime(std::string_view text) noexcept {
    FieldReader reader(text);
    const std::optional<Date> date = readDate(reader);
    return date && reader.take("Tt") && isTimeOf(reader, date);
}

bool isDate(std::string_view text) noexcept {
    FieldReader reader(text);
    return readDate(reader) && reader.atEnd();
}

bool isTime(std::string_view text) noexcept {
    FieldReader reader(text);
    return isTimeOf(reader, std::nullopt);
}

int daysInMonth(int year, int month) {
    switch (month) {
    case 1:
    case 3:
    case 5:
    case 7:
    case 8:
    case 10:
    case 12:
        return 31;
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    case 2:
        return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
    default:
        SPECLOOM_UNREACHABLE("month out of range");
    }
}

} // namespace specloom
