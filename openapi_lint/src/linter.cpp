#include "openapi_lint/linter.h"

#include "configuration/section.h"
#include "foundation/file_system.h"
#include "foundation/message.h"
#include "openapi/read_result.h"
#include "openapi_lint/formatter_registry.h"
#include "openapi_lint/rule_configuration_error.h"
#include "openapi_lint/rule_options.h"
#include "openapi_lint/rule_registry.h"
#include "openapi_lint/rulesets.h"
#include "telemetry/telemetry.h"

#include <algorithm> // std::stable_partition
#include <ostream>   // std::ostream
#include <stdexcept> // std::runtime_error
#include <vector>    // std::vector

namespace specloom::openapi_lint {
namespace {

constexpr char rulesetFailed[] = "Cannot load ruleset: ";
constexpr char ruleFailed[] = "Cannot load rule: ";
constexpr char invalidRule[] = "Invalid rule configuration";
constexpr char shortArray[] = "A rule's array must hold a severity and options";
constexpr char noFilename[] = "Cannot auto-fix: filename is not set";

/// What stands under a rule's id in a configuration.
struct RuleSetting {
    std::string_view severity = "error";
    const jv::JV* options = nullptr;
};

RuleSetting readSetting(std::string_view id, const jv::JV& value) {
    if (value.isString())
        return {value.text(), nullptr};
    if (!value.isArray())
        throw RuleConfigurationError(id, invalidRule);
    if (value.size() < 2)
        throw std::runtime_error(shortArray);
    return {textOf(*value.elements()[0], id), value.elements()[1]};
}

/// In the order in which they run: fixable ones first, each part in the order of the ids.
std::vector<Rule*> inRunningOrder(const Linter::Rules& rules) {
    std::vector<Rule*> order;
    for (const auto& [id, rule] : rules)
        order.push_back(rule.get());
    std::stable_partition(order.begin(), order.end(), [](const Rule* rule) { return rule->isFixable(); });
    return order;
}

} // namespace

Linter::Linter(std::ostream& stream) : stream_(stream), formatter_(findFormatter(defaultFormatter, stream)) {}

void Linter::configure(const jv::JV* config) {
    if (config == nullptr)
        return;
    const configuration::Section given(*config);
    std::vector<std::string_view> rulesets; // all are names before the first is looked for
    for (const jv::JV* name : given.elements("extends"))
        rulesets.push_back(textOf(*name, "extends"));
    for (const std::string_view name : rulesets)
        addRuleset(name);
    for (const auto& [id, value] : given.section("rules").members())
        configureRule(id, *value);
}

void Linter::configureDefaults() {
    jv::JV config;
    config.makeObject();
    config.setArray("extends")->appendString("recommended");
    configure(&config);
}

void Linter::addRuleset(std::string_view name) {
    try {
        const std::unique_ptr<Ruleset> ruleset = findRuleset(name);
        for (const auto& [id, entry] : ruleset->entries()) {
            Rule& rule = putRule(id, entry.severity);
            if (entry.options != nullptr)
                rule.configure(entry.options.get());
        }
    } catch (const std::exception& error) {
        stream_ << rulesetFailed << Message(error).composed() << '\n';
    }
}

void Linter::configureRule(std::string_view id, const jv::JV& value) {
    try {
        const RuleSetting setting = readSetting(id, value);
        if (setting.severity == "off") {
            if (const auto rule = rules_.find(id); rule != rules_.end())
                rules_.erase(rule);
            return;
        }
        Rule& rule = putRule(id, parseSeverity(setting.severity));
        if (setting.options != nullptr)
            rule.configure(setting.options);
    } catch (const RuleConfigurationError& error) {
        stream_ << ruleFailed << Message(error).composed() << '\n';
        throw;
    } catch (const std::exception& error) {
        stream_ << ruleFailed << Message(error).composed() << '\n';
        throw RuleConfigurationError(id, invalidRule);
    }
}

/// The rule of that id, made if it is not there, with that severity.
Rule& Linter::putRule(std::string_view id, Severity severity) {
    auto rule = rules_.find(id);
    if (rule == rules_.end())
        rule = rules_.emplace(std::string(id), findRule(id, severity)).first;
    rule->second->setSeverity(severity);
    return *rule->second;
}

void Linter::setFormatter(std::string_view name) {
    formatter_ = findFormatter(name, stream_);
}

void Linter::run(openapi::ReadResult& document, std::string_view path) {
    context_.setFilename(canonicalPath(path));
    path_ = path;
    check(document);
}

void Linter::check(openapi::ReadResult& document) {
    context_.document = &document;
    context_.release(); // of a document whose check ended in an exception
    context_.forgetFixes();
    repaired_.reset();
    const std::vector<Rule*> rules = inRunningOrder(rules_);
    if (autoFix_) {
        const telemetry::Span span("autoFix");
        for (Rule* rule : rules)
            if (rule->isFixable())
                rule->fix(context_);
        if (!context_.filename().empty() && !context_.edits().empty())
            repair(document);
    }
    if (!(autoFix_ && dryRun_)) {
        const telemetry::Span span("check");
        context_.freeze();
        for (Rule* rule : rules)
            rule->check(context_);
        context_.release();
    }
    if (autoFix_) {
        if (context_.filename().empty())
            throw std::runtime_error(noFilename);
        finishRepair();
    }
    if (!(autoFix_ && dryRun_)) {
        const telemetry::Span span("format");
        formatter_->format(context_);
        stream_ << '\n';
    }
    context_.document = nullptr; // it ends before the next one comes
    context_.forgetFixes();
}

/// Makes the fixes in the text. The tree was changed alike; what is left to find is told by the places that
/// it has in the new text.
void Linter::repair(openapi::ReadResult& document) {
    repaired_.emplace(path_, context_.edits(),
                      [&](const jv::JV& value, jv::Pos pos) { document.movePosition(value, pos); });
}

/// Writes what was repaired, or tells it, and what people should know about it.
void Linter::finishRepair() {
    if (repaired_ && dryRun_)
        stream_ << repaired_->diff();
    else if (repaired_)
        repaired_->write();
    for (const Message& note : context_.notes())
        notes_.add(formatMessage("{}: {}", path_, note.composed()));
    if (repaired_)
        repaired_->tell(notes_);
    repaired_.reset();
}

} // namespace specloom::openapi_lint
