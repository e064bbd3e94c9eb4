#include "jv_generator/generator.h"

#include "foundation/message.h"
#include "jv/jv_document.h"
#include "jv_generator/composite_parts.h"
#include "jv_generator/gen_factory.h"
#include "jv_schema/schema.h"

#include <algorithm>     // std::min, std::swap
#include <optional>      // std::optional
#include <set>           // std::set
#include <stdexcept>     // std::runtime_error
#include <string>        // std::string
#include <unordered_set> // std::unordered_set
#include <utility>       // std::move

namespace specloom::jv_generator {

namespace {

using jv::JV;

constexpr std::uint32_t fullDepth = 3;       ///< levels that are filled as far as the limits allow
constexpr std::uint32_t scalarDepth = 5;     ///< levels that get what holds no other values
constexpr std::uint64_t legibleSize = 600;   ///< values, after which the rest gets what it must have
constexpr int attemptsInFull = 12;           ///< of mostAttempts; the others leave out what can be left out
constexpr int attemptsInHope = 40;           ///< before all alternatives are told apart
constexpr std::uint64_t mostFailures = 2000; ///< of parts, in one attempt
constexpr int mostNestedChoices = 200;
constexpr std::size_t mostKeptDemands = 50'000; ///< from one schema to the next
constexpr std::uint64_t rareNull = 8;           ///< one in so many of the values that may be null

constexpr const char* noFit = "No value fits the schema at {}: {}";
constexpr const char* noFitBecause = "No value fits the schema at {}: {} ({})";
constexpr const char* notUsable = "The schema at {} cannot be used: {}";
constexpr const char* tooDeep = "Every value of the schema at {} is nested more than {} levels deep";
constexpr const char* tooLarge = "Every value of the schema at {} has more than {} values and bytes";
constexpr const char* tooMany = "The values of the schema at {} have more than {} values and bytes";
constexpr const char* notFound = "No value was found for the schema at {} in {} attempts: {}";

} // namespace

class Generator::Impl final : public Context {
  public:
    GeneratorConfig settings;

    void setSchema(const openapi::Node& schema);
    void setSchemas(const std::vector<const openapi::Node*>& schemas);
    void choose(const openapi::Node& schema);
    [[nodiscard]] std::unique_ptr<JV> generateValue();
    void requireRoomFor(std::uint64_t values) const;

    // What parts work with.

    [[nodiscard]] const GeneratorConfig& config() const override { return settings; }
    [[nodiscard]] RandomEngine& random() override { return engine_; }
    [[nodiscard]] bool generate(Demand& demand, JV& out) override;
    void generateFallback(JV& out) override { out.setInteger(42); }
    [[nodiscard]] bool isPossible(Demand& demand) override;
    [[nodiscard]] std::uint32_t depth() const noexcept override { return depth_; }
    [[nodiscard]] Fullness fullness() const noexcept override;
    [[nodiscard]] std::uint32_t spread() const noexcept override { return spread_; }
    void setSpread(std::uint32_t doublings) noexcept override { spread_ = doublings; }
    void countBytes(std::uint64_t bytes) override;

    std::vector<UsedPattern> usedPatterns;

  protected:
    void noteFailure(const JV* schema, std::string_view reason) override;

  private:
    void read(const std::vector<const openapi::Node*>& schemas, JSONSchema::Root root);
    void aimAt(const openapi::Node& schema);
    void compile();
    void requirePossible();
    [[nodiscard]] const Demand& culprit(const Demand& root) const;
    [[nodiscard]] std::string pointerOf(const JV* schema) const;
    [[nodiscard]] bool makePart(Demand& demand, JV& out);
    [[nodiscard]] bool makeChoice(Demand& demand, JV& out);
    [[nodiscard]] std::size_t firstChoice(const Demand& demand);
    void learnFrom(const JV& instance);
    void rebuild();
    void notePatterns();

    const openapi::Node* schema_ = nullptr;
    std::string pointer_;
    std::unique_ptr<JSONSchema> bundle_;
    std::unique_ptr<SchemaGraph> graph_;
    std::unique_ptr<GenFactory> factory_;
    std::optional<jv::schema::Schema> validator_;
    SchemaId rootId_ = noSchema;
    Demand* root_ = nullptr;
    std::string member_; ///< of the instances that the validator judges, where they are objects of values

    std::size_t notedPatterns_ = 0;
    std::set<std::pair<const JV*, std::string_view>> knownPatterns_;
    RandomEngine engine_;
    std::uint64_t generated_ = 0; ///< values and bytes in all
    std::uint64_t made_ = 0;      ///< values of this attempt
    std::uint64_t failures_ = 0;  ///< of this attempt
    std::uint32_t depth_ = 0;
    std::uint32_t spread_ = 0;
    int attempt_ = 0;
    int nestedChoices_ = 0;
    std::string failure_; ///< the first one of this attempt
};

// ---- a schema

void Generator::Impl::setSchema(const openapi::Node& schema) {
    if (schema_ == &schema)
        return;
    read({&schema}, JSONSchema::Root::First);
    aimAt(schema);
    requirePossible();
    compile();
    schema_ = &schema;
}

void Generator::Impl::setSchemas(const std::vector<const openapi::Node*>& schemas) {
    read(schemas, JSONSchema::Root::Members);
    compile();
}

void Generator::Impl::choose(const openapi::Node& schema) {
    if (factory_->demandCount() > mostKeptDemands)
        rebuild();
    aimAt(schema);
    member_ = bundle_->memberOf(schema);
    engine_ = RandomEngine();
    requirePossible();
}

void Generator::Impl::read(const std::vector<const openapi::Node*>& schemas, JSONSchema::Root root) {
    schema_ = nullptr;
    member_.clear();
    bundle_ = std::make_unique<JSONSchema>(schemas, root);
    graph_ = std::make_unique<SchemaGraph>(*bundle_);
    rebuild();
}

void Generator::Impl::aimAt(const openapi::Node& schema) {
    pointer_ = schema.source()->pointer();
    rootId_ = graph_->idOf(bundle_->target(bundle_->reference(schema)));
    root_ = &factory_->demand({rootId_});
}

void Generator::Impl::compile() {
    jv::schema::CompileOptions options;
    options.assertFormats = true;
    try {
        validator_ = jv::schema::Schema::compile(bundle_->bundle(), options);
    } catch (const jv::schema::CompileError& error) {
        const std::string text = error.what();
        throw std::runtime_error(formatMessage(notUsable, bundle_->documentPointer(error.location()),
                                               text.substr(0, text.rfind(" at "))));
    }
}

/// Forgets what was built, but not what was learnt.
void Generator::Impl::rebuild() {
    notedPatterns_ = 0;
    factory_ = std::make_unique<GenFactory>(*graph_, settings);
}

void Generator::Impl::requirePossible() {
    factory_->measure(*root_);
    if (root_->height == Demand::endless) {
        const Demand& cause = culprit(*root_);
        const std::string_view reason = cause.state == Demand::State::Impossible
                                            ? std::string_view(cause.reason)
                                            : "it asks for itself without end";
        const std::string place = pointerOf(cause.place);
        if (place.empty() || place == pointer_)
            throw NoValueError(formatMessage(noFit, pointer_, reason));
        throw NoValueError(formatMessage(noFitBecause, pointer_, reason, place));
    }
    if (root_->height > deepestValue)
        throw std::runtime_error(formatMessage(tooDeep, pointer_, deepestValue));
    if (root_->size > mostGenerated)
        throw std::runtime_error(formatMessage(tooLarge, pointer_, mostGenerated));
}

/// What makes a demand impossible: a demand that is so by itself, or one that leads back to itself.
const Demand& Generator::Impl::culprit(const Demand& root) const {
    std::unordered_set<const Demand*> seen;
    const Demand* at = &root;
    while (seen.insert(at).second && at->state != Demand::State::Impossible) {
        const Demand* next = nullptr;
        for (const Demand* alternative : at->alternatives) {
            if (next == nullptr || !seen.contains(alternative))
                next = alternative;
        }
        if (at->part != nullptr) {
            for (const Need& need : at->part->needs()) {
                if (need.demand->height == Demand::endless && (next == nullptr || seen.contains(next)))
                    next = need.demand;
            }
        }
        if (next == nullptr)
            break;
        at = next;
    }
    return *at;
}

std::string Generator::Impl::pointerOf(const JV* schema) const {
    const JV* origin = schema == nullptr ? nullptr : bundle_->origin(*schema);
    return origin == nullptr ? std::string() : origin->pointer();
}

void Generator::Impl::requireRoomFor(std::uint64_t values) const {
    if (root_->size > mostGenerated / std::max<std::uint64_t>(values, 1))
        throw std::runtime_error(formatMessage(tooMany, pointer_, mostGenerated));
}

// ---- values

std::unique_ptr<JV> Generator::Impl::generateValue() {
    for (attempt_ = 0; attempt_ < mostAttempts; ++attempt_) {
        made_ = 0;
        failures_ = 0;
        spread_ = 0;
        failure_.clear();
        auto instance = member_.empty() ? std::make_unique<JV>() : JV::newObject();
        JV& value = member_.empty() ? *instance : *instance->setNull(member_);
        if (!generate(*root_, value))
            continue;
        if (validator_->isValid(*instance)) {
            notePatterns();
            return member_.empty() ? std::move(instance) : jv::JVDocument::clone(value);
        }
        learnFrom(*instance);
    }
    throw std::runtime_error(formatMessage(notFound, pointer_, mostAttempts, failure_));
}

void Generator::Impl::notePatterns() {
    const std::vector<PatternPlace>& patterns = factory_->patterns();
    for (; notedPatterns_ < patterns.size(); ++notedPatterns_) {
        const PatternPlace& place = patterns[notedPatterns_];
        const JV* schema = bundle_->origin(*place.schema);
        if (schema != nullptr && knownPatterns_.emplace(schema, place.pattern).second)
            usedPatterns.push_back({std::string(place.pattern), schema});
    }
}

/// Alternatives of `oneOf` that fitted together are told apart in the next attempts.
void Generator::Impl::learnFrom(const JV& instance) {
    const std::vector<jv::schema::ValidationError> errors = validator_->validate(instance);
    bool hasLearned = false;
    for (const jv::schema::ValidationError& error : errors) {
        if (failure_.empty())
            failure_ = error.message;
        if (!error.matching)
            continue;
        std::string_view location = error.schemaLocation;
        location.remove_prefix(location.find('#') + 1);
        const JV* schema = bundle_->at(location.substr(0, location.rfind('/')));
        const SchemaId id = schema == nullptr ? noSchema : graph_->find(*schema);
        if (id != noSchema && graph_->node(id).oneOf.size() > 1)
            hasLearned |= graph_->tellApart(id, error.matching->first, error.matching->second);
    }
    if (attempt_ == attemptsInHope)
        hasLearned |= graph_->tellAllApart();
    if (hasLearned) {
        rebuild();
        root_ = &factory_->demand({rootId_});
        requirePossible();
    }
}

Fullness Generator::Impl::fullness() const noexcept {
    if (attempt_ >= attemptsInFull || made_ > legibleSize)
        return Fullness::Required;
    if (depth_ < fullDepth)
        return Fullness::Full;
    return depth_ < scalarDepth ? Fullness::Scalars : Fullness::Required;
}

bool Generator::Impl::isPossible(Demand& demand) {
    factory_->measure(demand);
    return demand.height != Demand::endless && demand.height + depth_ < deepestValue;
}

bool Generator::Impl::generate(Demand& demand, JV& out) {
    if (!isPossible(demand))
        return fail(demand.place, demand.reason);
    return demand.state == Demand::State::Choice ? makeChoice(demand, out) : makePart(demand, out);
}

bool Generator::Impl::makePart(Demand& demand, JV& out) {
    ++made_;
    if (++generated_ > mostGenerated)
        throw std::runtime_error(formatMessage(tooMany, pointer_, mostGenerated));
    if (failures_ > mostFailures || depth_ >= deepestValue)
        return false;
    depth_ += demand.part->isContainer() ? 1 : 0;
    const int outerChoices = nestedChoices_;
    nestedChoices_ = 0;
    const bool isMade = demand.part->generate(*this, out);
    nestedChoices_ = outerChoices;
    depth_ -= demand.part->isContainer() ? 1 : 0;
    failures_ += isMade ? 0 : 1;
    return isMade;
}

/// The alternative to begin with.
std::size_t Generator::Impl::firstChoice(const Demand& demand) {
    const std::size_t count = demand.alternatives.size();
    if (demand.choosing == Demand::Choosing::First && attempt_ < attemptsInFull)
        return 0;
    if (demand.mayBeNull && count > 1)
        return engine_.below(rareNull) == 0 ? 0 : 1 + engine_.below(count - 1);
    return engine_.below(count);
}

bool Generator::Impl::makeChoice(Demand& demand, JV& out) {
    if (nestedChoices_ >= mostNestedChoices)
        return fail(demand.place, "its alternatives are nested too deep");
    ++nestedChoices_;
    const std::size_t count = demand.alternatives.size();
    const std::size_t first = firstChoice(demand);
    const bool isLean = fullness() != Fullness::Full;
    bool isMade = false;
    for (std::size_t i = 0; i < count && !isMade; ++i) {
        Demand& alternative = *demand.alternatives[(first + i) % count];
        if (!isPossible(alternative))
            continue;
        // The shallowest ones where the value is deep or large already.
        if (isLean && alternative.height > demand.height)
            continue;
        isMade = generate(alternative, out);
    }
    for (std::size_t i = 0; i < count && !isMade && isLean; ++i) {
        Demand& alternative = *demand.alternatives[(first + i) % count];
        if (alternative.height > demand.height && isPossible(alternative))
            isMade = generate(alternative, out);
    }
    --nestedChoices_;
    return isMade;
}

void Generator::Impl::countBytes(std::uint64_t bytes) {
    generated_ += std::min(bytes, mostGenerated + 1);
    if (generated_ > mostGenerated)
        throw std::runtime_error(formatMessage(tooMany, pointer_, mostGenerated));
}

void Generator::Impl::noteFailure(const JV* schema, std::string_view reason) {
    if (!failure_.empty())
        return;
    failure_ = reason;
    const std::string place = pointerOf(schema);
    if (!place.empty() && place != pointer_)
        failure_ += " (" + place + ")";
}

// ---- the handle

Generator::Generator() : impl_(std::make_unique<Impl>()) {}

Generator::Generator(const openapi::Node& schema) : Generator() {
    setSchema(schema);
}

Generator::~Generator() = default;

GeneratorConfig& Generator::config() noexcept {
    return impl_->settings;
}

void Generator::setSchema(const openapi::Node& schema) {
    impl_->setSchema(schema);
}

void Generator::setSchemas(const std::vector<const openapi::Node*>& schemas) {
    impl_->setSchemas(schemas);
}

void Generator::choose(const openapi::Node& schema) {
    impl_->choose(schema);
}

std::unique_ptr<JV> Generator::generate() {
    return impl_->generateValue();
}

void Generator::requireRoomFor(std::uint64_t values) const {
    impl_->requireRoomFor(values);
}

const std::vector<UsedPattern>& Generator::usedPatterns() const noexcept {
    return impl_->usedPatterns;
}

} // namespace specloom::jv_generator
