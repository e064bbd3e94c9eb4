#include "regex/simulation.h"

#include <algorithm> // std::ranges::fill

namespace specloom::regex {

namespace {
using Code = Instruction::Code;
} // namespace

void Simulation::clear() {
    states_.clear();
    matched_ = false;
    seen_.resize(automaton_.instructions.size());
    if (++round_ == 0) {
        std::ranges::fill(seen_, 0);
        round_ = 1;
    }
}

void Simulation::start() {
    clear();
    follow(automaton_.start, true);
}

void Simulation::restore(std::span<const std::uint32_t> states) {
    clear();
    states_.assign(states.begin(), states.end());
    for (const std::uint32_t state : states)
        seen_[state] = round_;
    steps_ += states.size();
}

void Simulation::decide(const Place& place, const LookaroundTable& lookarounds) {
    if (!automaton_.hasConditions)
        return;
    // What is followed here may come to further conditions: they join the end of the states.
    for (std::size_t i = 0; i < states_.size(); ++i) {
        const Instruction& instruction = automaton_.instructions[states_[i]];
        if (holds(instruction, place, lookarounds))
            follow(instruction.next, place.first);
    }
    steps_ += states_.size();
}

void Simulation::step(std::uint32_t characterClass) {
    before_.swap(states_);
    clear();
    for (const std::uint32_t state : before_) {
        const Instruction& instruction = automaton_.instructions[state];
        if (consumes(instruction, characterClass))
            follow(instruction.next, false);
    }
    follow(automaton_.start, false);
    steps_ += before_.size();
}

void Simulation::follow(std::uint32_t instruction, bool first) {
    pending_.push_back(instruction);
    while (!pending_.empty()) {
        const std::uint32_t index = pending_.back();
        pending_.pop_back();
        if (seen_[index] == round_)
            continue;
        seen_[index] = round_;
        ++steps_;
        const Instruction& met = automaton_.instructions[index];
        switch (met.code) {
        case Code::Match:
            matched_ = true;
            break;
        case Code::Split:
            pending_.push_back(met.other);
            pending_.push_back(met.next);
            break;
        case Code::ScanStart:
            if (first)
                pending_.push_back(met.next);
            break;
        default:
            states_.push_back(index);
        }
    }
}

bool Simulation::holds(const Instruction& instruction, const Place& place,
                       const LookaroundTable& lookarounds) const {
    switch (instruction.code) {
    case Code::ScanEnd:
        return place.last;
    case Code::Boundary:
        return (place.wordBefore != place.wordAfter) != instruction.negated;
    case Code::Lookaround:
        return lookarounds[instruction.other][place.position] != instruction.negated;
    default:
        return false;
    }
}

bool Simulation::consumes(const Instruction& instruction, std::uint32_t characterClass) const {
    if (instruction.code == Code::Character)
        return instruction.other == characterClass;
    return instruction.code == Code::Set && set_.classes.contains(instruction.other, characterClass);
}

} // namespace specloom::regex
