#include "bench/benchmarks.h"
#include "bench/measure.h"
#include "jv/deser.h"
#include "openapi/document_schema.h"

#include <memory> // std::unique_ptr

namespace specloom::bench {

void benchSchema(const Input& input, int rounds, Table& table) {
    const jv::LoadOptions options{
        .format = input.isJson() ? jv::DocumentFormat::Json : jv::DocumentFormat::Yaml, .refLoader = {}};
    Samples values, decide, explain;
    for (int round = 0; round < rounds; ++round) {
        std::unique_ptr<jv::JVDocument> document;
        values.add(seconds([&] { document = jv::parseDocument(input.text, options); }));
        const jv::JV& root = *document->root();
        const jv::schema::Schema& schema = openapi::documentSchema(root.getRequiredString("openapi")->text());
        decide.add(seconds([&] { static_cast<void>(schema.isValid(root)); }));
        explain.add(seconds([&] { static_cast<void>(schema.validate(root)); }));
    }
    const auto compare = [&](const char* what, const Samples& ours, double target) {
        table.add({what, input.name(), milliseconds(ours.median()), milliseconds(values.median()),
                   ours.median() / values.median(), target});
    };
    compare("decide by schema / read values", decide, 0.8);
    compare("explain by schema / read values", explain, 1.2);
}

} // namespace specloom::bench
