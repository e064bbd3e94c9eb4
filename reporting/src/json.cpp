#include "reporting/json.h"

#include "jv/json_writer.h"

#include <ostream> // std::ostream

namespace specloom::reporting {

void writeJson(const jv::JVDocument& report, std::ostream& stream) {
    jv::JSONWriter writer;
    writer.write(report);
    stream << writer.output() << '\n';
}

} // namespace specloom::reporting
