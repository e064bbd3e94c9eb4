#include "jv_generator/generator.h"

#include "foundation/message.h"
#include "jv/jv_document.h"
#include "jv_generator/composite_parts.h"
#include "jv_generator/gen_factory.h"
#include "jv_schema/schema.h"

#include <algorithm>     // std::max, std::min
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
    void generateValue(jv::TreeBuilder& out);
    void requireRoomFor(std::uint64_t values) const;

    // What parts work with.

    [[nodiscard]] const GeneratorConfig& config() const override { return settings; }
    [[nodiscard]] RandomEngine& random() override { return engine_; }
    [[nodiscard]] bool generate(Demand& demand, jv::TreeBuilder& out) override;
    void generateFallback(jv::TreeBuilder& out) override { out.addNumber(42, {}); }
    [[nodiscard]] std::string& buffer() noexcept override { return buffer_; }
    [[nodiscard]] jv::TreeBuilder& scratch() override;
    [[nodiscard]] bool isPossible(Demand& demand) override {
        if (!demand.isMeasured)
            factory_->measure(demand);
        return demand.height != Demand::endless && demand.height + depth_ < deepestValue;
    }
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
    [[nodiscard]] bool makePart(Demand& demand, jv::TreeBuilder& out);
    [[nodiscard]] bool makeChoice(Demand& demand, jv::TreeBuilder& out);
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
    std::string buffer_;
    std::optional<jv::TreeBuilder> scratch_; ///< of this value, once it was asked for
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
    // Where they choose nothing, texts are held to them one by one.
    options.assertFormats = bundle_->formatsChoose();
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

void Generator::Impl::generateValue(jv::TreeBuilder& out) {
    scratch_.reset();
    const jv::TreeBuilder::Checkpoint before = out.checkpoint();
    for (attempt_ = 0; attempt_ < mostAttempts; ++attempt_) {
        made_ = 0;
        failures_ = 0;
        spread_ = 0;
        failure_.clear();
        if (!generate(*root_, out))
            continue;
        std::unique_ptr<JV> wrapper;
        if (!member_.empty()) {
            wrapper = JV::newObject();
            wrapper->set(member_, jv::JVDocument::clone(*out.last()));
        }
        const JV& instance = wrapper == nullptr ? *out.last() : *wrapper;
        if (validator_->isValid(instance))
            return notePatterns();
        learnFrom(instance);
        out.rollBack(before);
    }
    throw std::runtime_error(formatMessage(notFound, pointer_, mostAttempts, failure_));
}

jv::TreeBuilder& Generator::Impl::scratch() {
    if (!scratch_)
        scratch_.emplace(std::make_unique<jv::JVDocument>());
    return *scratch_;
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

bool Generator::Impl::generate(Demand& demand, jv::TreeBuilder& out) {
    if (!isPossible(demand))
        return fail(demand.place, demand.reason);
    return demand.state == Demand::State::Choice ? makeChoice(demand, out) : makePart(demand, out);
}

bool Generator::Impl::makePart(Demand& demand, jv::TreeBuilder& out) {
    ++made_;
    if (++generated_ > mostGenerated)
        throw std::runtime_error(formatMessage(tooMany, pointer_, mostGenerated));
    if (failures_ > mostFailures || depth_ >= deepestValue)
        return false;
    const std::uint32_t levels = demand.isContainer ? 1 : 0;
    const int outerChoices = nestedChoices_;
    const jv::TreeBuilder::Checkpoint before = out.checkpoint();
    nestedChoices_ = 0;
    depth_ += levels;
    const bool isMade = demand.part->generate(*this, out);
    depth_ -= levels;
    nestedChoices_ = outerChoices;
    if (!isMade) {
        out.rollBack(before);
        ++failures_;
    }
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

bool Generator::Impl::makeChoice(Demand& demand, jv::TreeBuilder& out) {
    if (nestedChoices_ >= mostNestedChoices)
        return fail(demand.place, "its alternatives are nested too deep");
    ++nestedChoices_;
    const bool isLean = fullness() != Fullness::Full;
    const std::uint64_t modestSize = std::max(demand.size, modestOptional);
    // The shallowest ones where the value is deep or large already, and huge ones last.
    const auto isModest = [&](const Demand& alternative) {
        return alternative.size <= modestSize && (!isLean || alternative.height <= demand.height);
    };
    const std::size_t first = firstChoice(demand);
    bool isMade = false;
    bool isOneLeft = true;
    for (const bool wantsModest : {true, false}) {
        if (isMade || !isOneLeft)
            break;
        isOneLeft = false;
        std::size_t next = first;
        do {
            Demand& alternative = *demand.alternatives[next];
            next = next + 1 == demand.alternatives.size() ? 0 : next + 1;
            if (!isPossible(alternative))
                continue;
            if (isModest(alternative) == wantsModest)
                isMade = generate(alternative, out);
            else
                isOneLeft = true;
        } while (!isMade && next != first);
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

void Generator::generate(jv::TreeBuilder& out) {
    impl_->generateValue(out);
}

std::unique_ptr<JV> Generator::generate() {
    jv::TreeBuilder out(std::make_unique<jv::JVDocument>());
    generate(out);
    return jv::JVDocument::clone(*out.last());
}

void Generator::requireRoomFor(std::uint64_t values) const {
    impl_->requireRoomFor(values);
}

const std::vector<UsedPattern>& Generator::usedPatterns() const noexcept {
    return impl_->usedPatterns;
}

} // namespace specloom::jv_generator
