#include "jv_schema/evaluation.h"

#include "foundation/hash.h"
#include "jv/jv_pointer.h"
#include "jv_schema/compiler.h"
#include "jv_schema/messages.h"

#include <cstdint> // std::uintptr_t
#include <utility> // std::exchange, std::move

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

constexpr std::size_t shortEvaluation = 4'000'000; // steps without a memory
constexpr std::size_t mostAnswers = 1'000'000;     // in memory
constexpr std::size_t stepsToExplain = 8;          // that one application counts for, by the time it takes

} // namespace

std::size_t Evaluation::QuestionHash::operator()(const Question& question) const noexcept {
    return combine(reinterpret_cast<std::uintptr_t>(question.node) >> 3,
                   reinterpret_cast<std::uintptr_t>(question.instance) * 0x9e3779b97f4a7c15);
}

Evaluation::Evaluation(const Program& program, Mode mode)
    : program_(program), explains_(mode == Mode::Explain), resource_(program.root->place->resource) {
    if (program.isDynamic)
        scope_.push_back(resource_);
}

bool Evaluation::applyKeywords(const Node& node, const JV& instance) {
    if (++depth_ > deepestEvaluation)
        refuseDepth(node, instance);
    steps_ += explains_ ? stepsToExplain : 1;
    if (steps_ > longestEvaluation)
        refuseLength();
    const bool remembers = node.isShared && (explains_ || steps_ > shortEvaluation);
    const bool valid = remembers ? applyRemembering(node, instance) : applyOnce(node, instance);
    --depth_;
    return valid;
}

/// What a schema says of a value depends on nothing else, unless the way or what it evaluates matters.
bool Evaluation::applyRemembering(const Node& node, const JV& instance) {
    if (program_.isDynamic || tracks_ || temporaries_ != 0)
        return applyOnce(node, instance);
    const Question question{node.alias == nullptr ? &node : node.alias, &instance};
    const auto answer = answers_.find(question);
    if (answer != answers_.end() && (answer->second || !explains_))
        return answer->second;
    const bool tells = explains_ && choices_ == 0;
    if (tells && told_.contains(question))
        return false;
    const bool valid = applyOnce(node, instance);
    if (answers_.size() >= mostAnswers)
        answers_.clear();
    answers_.insert_or_assign(question, valid);
    if (tells && !valid)
        told_.insert(question);
    return valid;
}

bool Evaluation::applyOnce(const Node& node, const JV& instance) {
    const Application application{&node, &instance, way_};
    way_ = &application;
    const Resource* outer = resource_;
    const bool enters = program_.isDynamic && node.place->resource != outer;
    if (enters) {
        resource_ = node.place->resource;
        scope_.push_back(resource_);
    }
    bool valid = false;
    if (!node.tracks) {
        valid = evaluateAll(node, instance);
    } else {
        const bool tracked = tracks_;
        const std::size_t first = firstMark_;
        firstMark_ = marks_.size();
        tracks_ = true;
        valid = evaluateAll(node, instance);
        if (!tracked)
            marks_.resize(firstMark_);
        firstMark_ = first;
        tracks_ = tracked;
    }
    if (enters) {
        scope_.pop_back();
        resource_ = outer;
    }
    way_ = application.outer;
    return valid;
}

bool Evaluation::evaluateAll(const Node& node, const JV& instance) {
    if (explains_)
        return explainAll(node.alias == nullptr ? node : *node.alias, instance);
    const KindSet kind = only(instance.kind());
    for (const Node::Entry& entry : node.entries) {
        if ((entry.kinds & kind) != 0 && !entry.keyword->evaluate(instance, *this))
            return false;
    }
    return true;
}

bool Evaluation::explainAll(const Node& node, const JV& instance) {
    if (node.keywords.empty())
        return node.accepts != 0 || rejects(node);
    const KindSet kind = only(instance.kind());
    bool valid = true;
    for (const auto& keyword : node.keywords) {
        const bool asks = (keyword->kinds() & kind) != 0 || (keyword->accepts() & kind) == 0;
        if (asks && !keyword->evaluate(instance, *this))
            valid = false;
    }
    return valid;
}

bool Evaluation::explainBelow(const Node& node, const JV& child, Step step) {
    const bool tracked = tracks_;
    tracks_ = false;
    path_.push_back(step);
    const bool valid = apply(node, child);
    path_.pop_back();
    tracks_ = tracked;
    return valid;
}

const Node* Evaluation::dynamicTarget(std::size_t name) const {
    for (const Resource* resource : scope_) {
        if (const Node* node = resource->dynamicNodes[name])
            return node;
    }
    return nullptr;
}

bool Evaluation::probe(const Node& node, const JV& instance) {
    const bool explained = explains_;
    explains_ = false;
    const bool valid = apply(node, instance);
    explains_ = explained;
    return valid;
}

bool Evaluation::probeChild(const Node& node, const JV& child) {
    const bool tracked = tracks_;
    tracks_ = false;
    const bool valid = probe(node, child);
    tracks_ = tracked;
    return valid;
}

bool Evaluation::probeTemporary(const Node& node, const JV& value) {
    ++temporaries_;
    const bool valid = probeChild(node, value);
    --temporaries_;
    return valid;
}

// ---- limits

void Evaluation::refuse(const Keyword& keyword, std::string message) const {
    throw Refusal({pointer(), keyword.owner().location(keyword.name()), std::string(keyword.name()),
                   std::move(message)});
}

void Evaluation::refuseDepth(const Node& node, const JV& instance) const {
    bool loops = false;
    for (const Application* outer = way_; outer != nullptr; outer = outer->outer)
        loops |= outer->node == &node && outer->instance == &instance;
    throw Refusal({pointer(),
                   node.place->location(),
                   {},
                   loops ? message::endless : fmt::format(message::tooDeep, deepestEvaluation)});
}

void Evaluation::refuseLength() const {
    throw Refusal(
        {{}, program_.root->place->location(), {}, fmt::format(message::tooLong, longestEvaluation)}, true);
}

// ---- findings

bool Evaluation::rejects(const Node& node) {
    if (!hasRoom())
        return false;
    const Place& place = *node.place;
    const bool isProperty = !path_.empty() && path_.back().index == notAnIndex;
    const bool isItem = !path_.empty() && !isProperty;
    const bool isChild = place.keyword == "properties" || place.keyword == "patternProperties" ||
                         place.keyword == "additionalProperties" || place.keyword == "unevaluatedProperties";
    const bool isElement = place.keyword == "items" || place.keyword == "prefixItems" ||
                           place.keyword == "additionalItems" || place.keyword == "unevaluatedItems";
    std::string text = message::noValue;
    if (isProperty && isChild)
        text = fmt::format(message::unknownProperty, quoted(path_.back().key));
    else if (isItem && isElement)
        text = message::surplusItem;
    add({{pointer(), place.location(), std::string(place.keyword), std::move(text)},
         path_.size() - (isProperty && isChild ? 1 : 0), // the object is at fault
         place.keyword});
    return false;
}

void Evaluation::add(const Keyword& keyword, std::string message,
                     decltype(ValidationError::matching) matching) {
    if (!hasRoom())
        return;
    add({{pointer(), keyword.owner().location(keyword.name()), std::string(keyword.name()),
          std::move(message), matching},
         path_.size(),
         keyword.name()});
}

bool Evaluation::failOfTwo(const Keyword& keyword, std::size_t first, std::size_t second) {
    if (explains_)
        add(keyword, fmt::format(message::severalBranches, first, second), std::pair(first, second));
    return false;
}

void Evaluation::add(Finding finding) {
    if (!hasRoom())
        return;
    pointerBytes_ += finding.error.instancePointer.size();
    findings_.push_back(std::move(finding));
}

bool Evaluation::hasRoom() const {
    const bool result = findings_.size() < mostErrors && pointerBytes_ < mostErrorBytes;
    if (!result && choices_ == 0)
        throw Enough();
    return result;
}

std::string Evaluation::pointer() const {
    std::string text;
    for (const Step& step : path_) {
        text += '/';
        if (step.index == notAnIndex)
            JVPointer::escapeToken(step.key, text);
        else
            text += std::to_string(step.index);
    }
    return text;
}

std::vector<Evaluation::Finding> Evaluation::findingsOf(const Node& node, const JV& instance) {
    std::vector<Finding> outer;
    outer.swap(findings_);
    const std::size_t outerBytes = std::exchange(pointerBytes_, 0);
    ++choices_;
    static_cast<void>(apply(node, instance));
    --choices_;
    outer.swap(findings_);
    pointerBytes_ = outerBytes;
    return outer;
}

void Evaluation::putFindings(std::vector<Finding> findings) {
    for (Finding& finding : findings)
        add(std::move(finding));
}

std::vector<ValidationError> Evaluation::takeErrors() {
    std::vector<ValidationError> errors;
    for (Finding& finding : findings_)
        errors.push_back(std::move(finding.error));
    return errors;
}

} // namespace specloom::jv::schema
