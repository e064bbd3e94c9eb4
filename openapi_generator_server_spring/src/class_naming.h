#pragma once

#include "foundation/text_tables.h"
#include "openapi/openapi.h"
#include "openapi_generator/unique_names.h"
#include "openapi_generator_server_spring/configuration.h"

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view

// The packages and the classes of a generated server. Qualified names are those of classes.
namespace specloom::openapi_generator::server_spring {

/// A group of operations by what its names begin with.
struct Group {
    std::string packagePart; ///< "pets"
    std::string classPrefix; ///< "Pets"
};

/// Makes the names of groups, each another.
class GroupNames {
  public:
    /// In the order in which groups are asked for, two that would have one name get 2, 3 and so on.
    [[nodiscard]] Group groupOf(std::string_view name);

  private:
    UniqueNames packageParts_;
};

[[nodiscard]] std::string webPackage(const Configuration& configuration);
[[nodiscard]] std::string domainPackage(const Configuration& configuration);
[[nodiscard]] std::string webPackage(const Configuration& configuration, const Group& group);
[[nodiscard]] std::string domainPackage(const Configuration& configuration, const Group& group);
/// Of what belongs to no group.
[[nodiscard]] std::string sharedPackage(const Configuration& configuration);
[[nodiscard]] std::string applicationClassName(const Configuration& configuration);
[[nodiscard]] std::string controllerClassName(const Configuration& configuration, const Group& group);
[[nodiscard]] std::string controllerTestClassName(const Configuration& configuration, const Group& group);
[[nodiscard]] std::string serviceInterfaceName(const Configuration& configuration, const Group& group);
[[nodiscard]] std::string serviceClassName(const Configuration& configuration, const Group& group);

/// Where the class of a schema is to be, and what it is to be called there.
struct ClassPlan {
    std::string package;
    std::string name;
    bool isSeenEverywhere = false; ///< from all packages; else from its own alone
};

/// What a plan of a schema without a name of its own is made of.
struct ElementNames {
    const Configuration& configuration;
    const Group& group;
    const openapi::Operation& operation;
};

/// What describes the value of a parameter, be it under `schema` or under the media type of `content`; null
/// when nothing does.
[[nodiscard]] const openapi::Node* schemaNodeOf(const openapi::Parameter& parameter);

/// The plan for the schema of a parameter: shared, by the key, for one of `components`; else of the group, by
/// the operationId and the title of the schema.
[[nodiscard]] ClassPlan paramDtoName(const ElementNames& names, const openapi::Parameter& parameter);
/// The same for a media type of a request body.
[[nodiscard]] ClassPlan requestDtoName(const ElementNames& names, const openapi::RequestBody& body,
                                       const openapi::MediaType& mediaType);
/// The same for a media type of a response, by its status too.
[[nodiscard]] ClassPlan responseDtoName(const ElementNames& names, const openapi::Response& response,
                                        std::string_view status, const openapi::MediaType& mediaType);
/// The plan for an entry of `components`.
[[nodiscard]] ClassPlan sharedDtoName(const Configuration& configuration, std::string_view key);

/// The names of all classes of a run, none of which hides another, or a class that templates name, from a
/// file that names both.
class ClassNames {
  public:
    /// Takes the name of a class that belongs to a group.
    void reserve(std::string_view qualifiedName);
    /// The qualified name of a new class: the planned one or, when that is taken, the same with the least
    /// number from 2 behind it that is free.
    [[nodiscard]] std::string take(const ClassPlan& plan);

  private:
    struct Holders {
        TextSet packages;
        bool isSeenEverywhere = false;
    };

    [[nodiscard]] bool isTaken(const ClassPlan& plan, std::string_view name) const;

    TextMap<Holders> holders_;         ///< by simple name
    TextMap<std::size_t> lastNumbers_; ///< by planned qualified name
};

} // namespace specloom::openapi_generator::server_spring
