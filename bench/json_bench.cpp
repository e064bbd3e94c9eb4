#include "bench/benchmarks.h"
#include "bench/measure.h"
#include "jv/json_reader.h"
#include "jv/json_writer.h"

#include <memory>    // std::unique_ptr
#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

#include <nlohmann/json.hpp>
#include <rapidjson/document.h>

namespace specloom::bench {

void benchJson(const Input& input, int rounds, Table& table) {
    Samples read, tearDown, write, rapidRead, nlohmannRead, nlohmannWrite;
    for (int round = 0; round < rounds; ++round) {
        {
            std::unique_ptr<jv::JVDocument> document;
            read.add(seconds([&] { document = jv::parseJSON(input.text); }));
            jv::JSONWriter writer;
            writer.setIndent(2);
            write.add(seconds([&] { writer.write(*document); }));
            tearDown.add(seconds([&] { document.reset(); }));
        }
        {
            std::optional<rapidjson::Document> document(std::in_place);
            rapidRead.add(seconds([&] { document->Parse(input.text.data(), input.text.size()); }));
            if (document->HasParseError())
                throw std::runtime_error("RapidJSON does not read " + input.name());
        }
        {
            nlohmann::json document;
            nlohmannRead.add(seconds([&] { document = nlohmann::json::parse(input.text); }));
            std::string text;
            nlohmannWrite.add(seconds([&] { text = document.dump(2); }));
        }
    }
    const auto compare = [&](const char* what, const Samples& ours, const Samples& peer, double target) {
        table.add({what, input.name(), milliseconds(ours.median()), milliseconds(peer.median()),
                   ours.median() / peer.median(), target});
    };
    compare("read JSON / RapidJSON DOM", read, rapidRead, 1.3);
    compare("read JSON / nlohmann parse", read, nlohmannRead, 0.4);
    compare("tear down / read JSON", tearDown, read, 0.6);
    compare("write JSON / nlohmann dump(2)", write, nlohmannWrite, 0.6);
}

} // namespace specloom::bench
