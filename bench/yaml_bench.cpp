#include "bench/benchmarks.h"
#include "bench/event_recorder.h"
#include "bench/measure.h"
#include "bench/yaml_peer.h"
#include "jv/yaml_reader.h"
#include "jv/yaml_writer.h"

#include <memory>    // std::unique_ptr
#include <stdexcept> // std::runtime_error

namespace specloom::bench {

void benchYaml(const Input& input, int rounds, Table& table) {
    Samples read, tearDown, write, peerRead, peerWrite;
    for (int round = 0; round < rounds; ++round) {
        std::unique_ptr<jv::JVDocument> document;
        read.add(seconds([&] { document = jv::parseYAML(input.text); }));
        jv::YAMLWriter writer;
        write.add(seconds([&] { writer.write(*document); }));
        {
            const EventRecording recording(*document);
            std::string replayed;
            peerWrite.add(seconds([&] { replayed = recording.replay(); }));
            if (replayed != writer.output())
                throw std::runtime_error("The recorded events are not those of the writer");
        }
        tearDown.add(seconds([&] { document.reset(); }));

        std::size_t events = 0;
        peerRead.add(seconds([&] { events = countYamlEvents(input.text); }));
        if (events == 0)
            throw std::runtime_error("libyaml does not read " + input.name());
    }
    const auto compare = [&](const char* what, const Samples& ours, const Samples& peer, double target) {
        table.add({what, input.name(), milliseconds(ours.median()), milliseconds(peer.median()),
                   ours.median() / peer.median(), target});
    };
    compare("read YAML / libyaml event loop", read, peerRead, 1.35);
    compare("tear down / read YAML", tearDown, read, 0.6);
    compare("write YAML / libyaml emitter, same events", write, peerWrite, 1.1);
}

} // namespace specloom::bench
