#include "egret/checks/empty_repeat.h"

#include "egret/analysis/tree.h"

namespace specloom::egret::checks {

void findEmptyRepeat(const Subject& subject, Findings& findings) {
    forEachNode(subject.tree.root, [&](const regex::Node& node) {
        if (node.kind != regex::Node::Kind::Repetition)
            return;
        const regex::Node& body = node.children.front();
        if (node.max == 0)
            findings.add(node.begin,
                         quoted(subject.textOf(node)) + " is repeated 0 times: it stands for nothing");
        else if (body.zeroWidth && node.max > 1)
            findings.add(node.begin, quoted(subject.textOf(node)) + " repeats what has no characters");
        else if (node.max == regex::unbounded && subject.shortest.of(body) == 0)
            findings.add(node.begin, quoted(subject.textOf(node)) + " repeats what may be empty");
    });
}

} // namespace specloom::egret::checks
