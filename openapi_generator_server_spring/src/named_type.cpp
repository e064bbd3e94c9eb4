#include "openapi_generator_server_spring/named_type.h"

#include "code_morph_java/spring/annotations.h"
#include "code_morph_java/spring/names.h"
#include "foundation/strings.h"
#include "openapi/extensions.h"
#include "openapi_generator/codegen_extensions.h"
#include "openapi_generator_server_spring/joined_text.h"

#include <utility> // std::move

namespace specloom::openapi_generator::server_spring {

NamedType::NamedType(Context& context, code_morph::java::SourceFile& file, const openapi::Schema& schema,
                     const std::string& qualifiedName)
    : Part(context, file, code_morph::java::classOf(qualifiedName), "named_type.jinja"), schema_(&schema),
      record_(context.typeOf(schema).record) {}

void NamedType::collectData() {
    const auto members = membersOf(*schema_);
    const std::vector<ObjectProperty> properties =
        members ? propertiesOf(*members) : std::vector<ObjectProperty>();
    if (!members)
        addIssue(IssueSeverity::Error,
                 formatMessage("Schema has more than {} members in its allOf ({}.{})", mostArguments,
                               file().packageName(), className()),
                 *schema_);
    if (properties.size() > mostArguments) {
        addIssue(IssueSeverity::Error,
                 formatMessage("Schema has more than {} properties ({}.{})", mostArguments,
                               file().packageName(), className()),
                 *schema_);
        return;
    }
    UniqueNames names;
    for (const ObjectProperty& property : properties)
        addField(property, names);
}

void NamedType::addField(const ObjectProperty& property, UniqueNames& names) {
    context().checkAnnotationText(property.key, *property.schemas.back());
    const code_morph::java::AnnotationRef annotation = code_morph::java::propertyAnnotation(
        property.key, property.isRequired, names.take(code_morph::java::toMemberName(nameOf(property))));
    const SchemaTypeInfo& type = typeOf(property);
    fields_ += fields_.empty() ? "" : ",\r\n    ";
    fields_.append(annotation.text) += annotation.text.empty() ? "" : " ";
    file().addImport(annotation.import);
    for (const Constraint& constraint : type.annotations) {
        fields_.append(constraint.text) += ' ';
        file().addImport(constraint.import);
    }
    type.addImports(file());
    if (type.record != SchemaTypeInfo::noRecord)
        context().recordCycles.addComponent(record_, type.record);
    fields_.append(type.text()).append(" ").append(annotation.name);
    types_.push_back(&type);
}

const SchemaTypeInfo& NamedType::typeOf(const ObjectProperty& property) const {
    static const SchemaTypeInfo object;
    const SchemaTypeInfo* agreed = nullptr;
    for (const openapi::Schema* schema : property.schemas) {
        const SchemaTypeInfo& type = context().typeOf(*schema);
        if (agreed == nullptr || agreed->isObject() || type.isSameType(*agreed)) {
            agreed = &type; // the last one may say more
        } else if (!type.isObject()) {
            addIssue(
                IssueSeverity::Warning,
                formatMessage("Members of allOf disagree on the type of '{}' ({}.{}). Falling back to Object",
                              property.key, file().packageName(), className()),
                *schema);
            return object;
        }
    }
    return *agreed;
}

std::string_view NamedType::nameOf(const ObjectProperty& property) const {
    const std::optional<std::string_view> name = chosenName(property);
    if (name && !isIdentifier(*name))
        addIssue(IssueSeverity::Fatal,
                 formatMessage("x-specloom/codegen/name must be a valid variable name ({}.{}.{})",
                               file().packageName(), className(), *name),
                 *property.schemas.back());
    return name.value_or(property.key);
}

std::optional<std::string_view> NamedType::chosenName(const ObjectProperty& property) const {
    try {
        return openapi_generator::nameOf(*property.schemas.back());
    } catch (const openapi::extensions::ExtensionError&) {
        addIssue(IssueSeverity::Error,
                 formatMessage("x-specloom/codegen/name must be a string ({}.{})", file().packageName(),
                               className()),
                 *property.schemas.back());
        return std::nullopt;
    }
}

void NamedType::fill(templating::Texts& texts) const {
    std::string values;
    for (const SchemaTypeInfo* type : types_) {
        const bool isCircular = type->record != SchemaTypeInfo::noRecord &&
                                context().recordCycles.leadsBack(record_, type->record);
        appendBehind(",\r\n            ", isCircular ? "null" : defaultValueOf(*type, "\"Hello\""), values);
    }
    texts.emplace_back("fields", fields_);
    texts.emplace_back("values", std::move(values));
}

} // namespace specloom::openapi_generator::server_spring
