#pragma once

#include "egret/strings.h"
#include "jv_generator/gen_factory.h"

#include <array>         // std::array
#include <cstddef>       // std::size_t
#include <map>           // std::map
#include <optional>      // std::optional
#include <span>          // std::span
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <unordered_set> // std::unordered_set
#include <utility>       // std::move, std::pair
#include <vector>        // std::vector

// The parts whose values hold others. What a part is made of outlives it.
namespace specloom::jv_generator {

class ArrayPart final : public GenBase {
  public:
    ArrayPart(GenFactory& factory, MergedSchema schema);

    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
    [[nodiscard]] std::span<const Need> needs() const override { return needs_; }
    [[nodiscard]] bool isContainer() const override { return true; }

  private:
    /// What the `contains` keywords say of an item: the number of the one that it is for, or one of these.
    static constexpr std::size_t forNone = SIZE_MAX;       ///< nothing
    static constexpr std::size_t forNoMore = SIZE_MAX - 1; ///< it is not one of those that are counted

    /// Items that have to fit the schema of a `contains`, behind one another.
    struct Position {
        std::size_t index;
        std::size_t containing;
    };

    [[nodiscard]] Demand& itemAt(std::size_t index, std::size_t containing);
    [[nodiscard]] std::vector<SchemaId> schemasAt(std::size_t index, std::size_t containing) const;
    void addNeeds();
    [[nodiscard]] std::uint64_t count(Context& context);
    [[nodiscard]] std::vector<Position> placeContained(Context& context, std::uint64_t& count);
    /// Items by their hashes.
    using Seen = std::unordered_multimap<std::uint64_t, const jv::JV*>;
    [[nodiscard]] std::uint64_t addItems(Context& context, std::uint64_t count,
                                         std::span<const Position> positions, jv::TreeBuilder& out);
    [[nodiscard]] static bool addDistinctItem(Context& context, Demand& demand, Seen& seen,
                                              jv::TreeBuilder& out);

    GenFactory* factory_;
    MergedSchema schema_;
    std::uint64_t leastItems_;
    std::size_t prefix_ = 0;                   ///< items before the ones that are alike
    std::uint64_t mostContained_ = UINT64_MAX; ///< items that may fit a `contains`
    std::vector<Demand*> items_;               ///< for no `contains`; the last one is that of all others
    std::map<std::pair<std::size_t, std::size_t>, Demand*> otherItems_;
    std::vector<Need> needs_;
};

class ObjectPart final : public GenBase {
  public:
    ObjectPart(GenFactory& factory, MergedSchema schema,
               std::vector<GenFactory::Discriminating> discriminating);

    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
    [[nodiscard]] std::span<const Need> needs() const override { return needs_; }
    [[nodiscard]] bool isContainer() const override { return true; }

  private:
    struct Property {
        jv::Key* key;
        Demand* demand;
        const std::string* text = nullptr; ///< the right text, as a discriminator says
        bool isRequired = false;

        [[nodiscard]] std::string_view name() const noexcept { return key->text(); }
    };

    /// The object at hand. An object of this part may hold another one.
    struct Making {
        Context& context;
        jv::TreeBuilder& out;
        std::uint64_t present = 0;                 ///< members so far
        std::unordered_set<std::string> further{}; ///< names of those that the schema does not know
    };

    void addProperties();
    void addNames();
    void addNeeds();
    void settleProperties();
    [[nodiscard]] Demand& propertyDemand(std::string_view name) const;
    [[nodiscard]] bool mayBeNamed(std::string_view name);
    /// Properties by their indices, ascending.
    using Indices = std::vector<std::uint32_t>;
    /// Which ones are taken.
    struct Offer {
        Indices always; ///< in any case
        Indices open;   ///< so many of these:
        std::uint64_t wanted = 0;
        Indices all; ///< both
    };
    [[nodiscard]] bool isOpen(const Property& property, Fullness fullness);
    void settleOffer(Offer& offer, Fullness fullness);
    [[nodiscard]] static Indices chosen(const Offer& offer, RandomEngine& random);
    [[nodiscard]] bool addKnown(Making& making);
    [[nodiscard]] bool addEach(Making& making, const Indices& indices);
    [[nodiscard]] bool add(Making& making, const Property& property);
    [[nodiscard]] bool addForeign(Making& making);
    [[nodiscard]] std::uint64_t furtherCount(const Making& making) const;
    [[nodiscard]] bool addFurther(Making& making, std::uint64_t count);
    [[nodiscard]] bool addMember(Making& making, const std::string& name, Demand& demand);
    [[nodiscard]] std::string furtherName(Context& context, std::uint64_t attempt);
    [[nodiscard]] static std::optional<std::string> nameFor(Context& context, Demand& names);

    GenFactory* factory_;
    MergedSchema schema_;
    std::vector<GenFactory::Discriminating> discriminating_;
    std::vector<Property> properties_; ///< in byte-wise order of their names
    std::size_t required_ = 0;
    bool isSettled_ = false;      ///< whether it was found out which properties can be
    std::array<Offer, 3> offers_; ///< by Fullness
    bool isMap_ = false;          ///< the schema is about names that it does not know
    Demand* names_ = nullptr;     ///< of the names; null where all are allowed
    std::optional<Admission> admittedNames_;
    std::vector<Demand*> foreignNames_; ///< one property each must have a name that these ask for
    std::vector<std::string_view> namePatterns_;
    std::vector<egret::Strings> patternNames_; ///< of these, once they are needed
    std::vector<Need> needs_;
};

} // namespace specloom::jv_generator
