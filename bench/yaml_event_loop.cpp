#include "bench/yaml_peer.h"
#include "test_support/corpora.h"

/// Reads the file named by the only argument and runs libyaml's parser over it.
int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    return specloom::bench::countYamlEvents(specloom::test_support::fileBytes(argv[1])) == 0 ? 1 : 0;
}
