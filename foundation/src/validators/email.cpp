#include "foundation/ascii.h"
#include "foundation/validators/validators.h"

#include <string_view> // std::string_view

namespace specloom {
namespace {

enum class State { Start, Local, Dot, Quoted, AfterQuote, DomainStart, Domain, Refused };

/// RFC 5322, section 3.2.3.
bool isAtext(char byte) {
    constexpr std::string_view others = "!#$%&'*+-/=?^_`{|}~";
    return ascii::isLetter(byte) || ascii::isDigit(byte) || others.find(byte) != std::string_view::npos;
}

State localState(State state, char byte) {
    if (isAtext(byte))
        return State::Local;
    if (state == State::Start && byte == '"')
        return State::Quoted;
    if (state == State::Local && byte == '.')
        return State::Dot;
    if (state == State::Local && byte == '@')
        return State::DomainStart;
    return State::Refused;
}

State nextState(State state, char byte) {
    switch (state) {
    case State::Start:
    case State::Local:
    case State::Dot:
        return localState(state, byte);
    case State::Quoted:
        return byte == '"' ? State::AfterQuote : State::Quoted;
    case State::AfterQuote:
        return byte == '@' ? State::DomainStart : State::Refused;
    case State::DomainStart:
    case State::Domain:
        return (byte >= '!' && byte <= 'Z') || (byte >= '^' && byte <= '~') ? State::Domain : State::Refused;
    case State::Refused:
        break;
    }
    return State::Refused;
}

} // namespace

bool isEmail(std::string_view text) noexcept {
    State state = State::Start;
    for (const char byte : text) {
        state = nextState(state, byte);
        if (state == State::Refused)
            return false;
    }
    return state == State::Domain;
}

} // namespace specloom
