#pragma once

#include "jv_generator/gen_factory.h"

#include <cstddef>       // std::size_t
#include <span>          // std::span
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <utility>       // std::move
#include <vector>        // std::vector

// The parts whose values hold others. What a part is made of outlives it.
namespace specloom::jv_generator {

class ArrayPart final : public GenBase {
  public:
    ArrayPart(GenFactory& factory, MergedSchema schema);

    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
    [[nodiscard]] std::span<const Need> needs() const override { return needs_; }
    [[nodiscard]] bool isContainer() const override { return true; }

  private:
    /// Items that have to fit the schema of a `contains`.
    struct Position {
        std::size_t index;
        Demand* demand;
    };

    [[nodiscard]] Demand& itemAt(std::size_t index);
    [[nodiscard]] Demand& makeItem(std::size_t index);
    [[nodiscard]] std::vector<SchemaId> schemasAt(std::size_t index) const;
    void addNeeds();
    [[nodiscard]] std::uint64_t count(Context& context);
    [[nodiscard]] std::vector<Position> placeContained(Context& context, std::uint64_t& count);
    [[nodiscard]] bool addItem(Context& context, Demand& demand, jv::JV& out);
    [[nodiscard]] bool addDistinctItem(Context& context, Demand& demand, jv::JV& out);
    [[nodiscard]] bool isNew(const jv::JV& item);

    GenFactory* factory_;
    MergedSchema schema_;
    std::uint64_t leastItems_;
    std::size_t prefix_ = 0;     ///< items before the ones that are alike
    std::vector<Demand*> items_; ///< the last one is that of all others
    std::vector<Need> needs_;
    std::unordered_multimap<std::uint64_t, const jv::JV*> seen_;
};

class ObjectPart final : public GenBase {
  public:
    ObjectPart(GenFactory& factory, MergedSchema schema,
               std::vector<GenFactory::Discriminating> discriminating);

    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
    [[nodiscard]] std::span<const Need> needs() const override { return needs_; }
    [[nodiscard]] bool isContainer() const override { return true; }

  private:
    struct Property {
        std::string_view name;
        Demand* demand;
        bool isRequired;
        bool isAsked = false; ///< whether it was found out if it can be
        bool isPossible = false;
        bool isScalar = false;
        const std::string* text = nullptr; ///< the right text, as a discriminator says
    };

    void addProperties();
    void addNeeds();
    [[nodiscard]] Demand& propertyDemand(std::string_view name) const;
    [[nodiscard]] bool mayBeNamed(std::string_view name) const;
    [[nodiscard]] bool canHave(Context& context, Property& property);
    [[nodiscard]] std::uint64_t optionalCount(Context& context, std::uint64_t required,
                                              std::uint64_t possible) const;
    [[nodiscard]] bool add(Context& context, const Property& property, jv::JV& out) const;
    [[nodiscard]] std::uint64_t furtherCount(Context& context, std::uint64_t present) const;
    [[nodiscard]] bool addFurther(Context& context, std::uint64_t count, jv::JV& out);
    [[nodiscard]] std::string furtherName(Context& context, std::uint64_t attempt);
    [[nodiscard]] bool isMap() const noexcept { return isMap_; }

    GenFactory* factory_;
    MergedSchema schema_;
    std::vector<GenFactory::Discriminating> discriminating_;
    std::vector<Property> properties_; ///< in byte-wise order of their names
    std::size_t required_ = 0;
    bool isMap_ = false; ///< the schema is about names that it does not know
    std::vector<SchemaId> nameSchemas_;
    Demand* names_ = nullptr; ///< of the names; null where all are allowed
    std::vector<std::string_view> namePatterns_;
    std::vector<Need> needs_;
    std::vector<Property*> chosen_;
};

} // namespace specloom::jv_generator
