#include "reporting/data.h"

#include "jv/json_writer.h"

#include <ostream> // std::ostream

#include <nlohmann/json.hpp>

namespace specloom::reporting {

void writeJson(const jv::JVDocument& report, std::ostream& stream) {
    jv::JSONWriter writer;
    writer.write(report);
    stream << writer.output() << '\n';
}

nlohmann::json templateData(const jv::JVDocument& report) {
    jv::JSONWriter writer;
    writer.write(report);
    return nlohmann::json::parse(writer.output());
}

} // namespace specloom::reporting
