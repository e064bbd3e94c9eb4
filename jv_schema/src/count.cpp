#include "jv_schema/count.h"

#include "foundation/message.h"
#include "jv_schema/messages.h"
#include "number/exact_numbers.h"

#include <limits> // std::numeric_limits

namespace specloom::jv::schema {

std::size_t countOf(const Site& site, const JV& value) {
    site.require(value, Kind::Number);
    const number::Number number = value.number();
    if (!number::isIntegral(number) || number.compare(0) < 0)
        site.fault(formatMessage(message::notCount, site.keyword));
    constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();
    if (number.kind() == number::NumberKind::Big)
        return largest;
    if (number.kind() == number::NumberKind::Float)
        return number.floatValue() < 0x1p63 ? static_cast<std::size_t>(number.floatValue()) : largest;
    return number.unsignedValue();
}

} // namespace specloom::jv::schema
