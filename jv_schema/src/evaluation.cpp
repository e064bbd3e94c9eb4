#include "jv_schema/evaluation.h"

#include "jv/jv_pointer.h"
#include "jv_schema/compiler.h"
#include "jv_schema/messages.h"

#include <iterator> // std::make_move_iterator
#include <utility>  // std::move

#include <fmt/core.h>

namespace specloom::jv::schema {

Evaluation::Evaluation(const Program& program, Mode mode)
    : program_(program), explains_(mode == Mode::Explain), resource_(program.root->place->resource) {
    if (program.isDynamic)
        scope_.push_back(resource_);
}

bool Evaluation::applyKeywords(const Node& node, const JV& instance) {
    if (++depth_ > deepestEvaluation)
        refuseDepth(node, instance);
    if (++steps_ > longestEvaluation)
        refuseLength();
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
    --depth_;
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

bool Evaluation::probe(const Node& node, const JV& child, std::size_t index) {
    const bool explained = explains_;
    explains_ = false;
    const bool valid = applyTo(node, child, index);
    explains_ = explained;
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
        {{}, program_.root->place->location(), {}, fmt::format(message::tooLong, longestEvaluation)});
}

// ---- findings

bool Evaluation::rejects(const Node& node) {
    if (findings_.size() >= mostErrors)
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
    findings_.push_back({{pointer(), place.location(), std::string(place.keyword), std::move(text)},
                         path_.size() - (isProperty && isChild ? 1 : 0), // the object is at fault
                         place.keyword});
    return false;
}

void Evaluation::add(const Keyword& keyword, std::string message) {
    if (findings_.size() >= mostErrors)
        return;
    findings_.push_back({{pointer(), keyword.owner().location(keyword.name()), std::string(keyword.name()),
                          std::move(message)},
                         path_.size(),
                         keyword.name()});
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

std::vector<Evaluation::Finding> Evaluation::takeFindings(std::size_t first) {
    const auto begin = findings_.begin() + static_cast<std::ptrdiff_t>(first);
    std::vector<Finding> taken(std::make_move_iterator(begin), std::make_move_iterator(findings_.end()));
    findings_.erase(begin, findings_.end());
    return taken;
}

void Evaluation::putFindings(std::vector<Finding> findings) {
    findings_.insert(findings_.end(), std::make_move_iterator(findings.begin()),
                     std::make_move_iterator(findings.end()));
}

std::vector<ValidationError> Evaluation::takeErrors() {
    std::vector<ValidationError> errors;
    for (Finding& finding : findings_)
        errors.push_back(std::move(finding.error));
    return errors;
}

} // namespace specloom::jv::schema
