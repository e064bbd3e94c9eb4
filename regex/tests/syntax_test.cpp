#include "regex/syntax.h"

#include <string> // std::string
#include <vector> // std::vector

#include <gtest/gtest.h>

namespace specloom::regex {

namespace {

std::string number(char32_t value) {
    return value > ' ' && value < 0x7F ? std::string(1, static_cast<char>(value)) : std::to_string(value);
}

/// A tree on one line: all that a reader of trees is promised, but for sizes.
class Printer {
  public:
    explicit Printer(const SyntaxTree& tree) : tree_(tree) {}

    std::string print(const Node& node) {
        std::string text = name(node);
        if (node.children.empty())
            return text;
        text += '(';
        for (const Node& child : node.children)
            text += (&child == &node.children.front() ? "" : " ") + print(child);
        return text + ')';
    }

  private:
    std::string name(const Node& node) {
        const std::string mark = node.negated ? "!" : "";
        switch (node.kind) {
        case Node::Kind::Sequence:
            return "seq";
        case Node::Kind::Alternation:
            return "or";
        case Node::Kind::Repetition:
            return std::to_string(node.min) + ".." + (node.max == unbounded ? "" : std::to_string(node.max)) +
                   (node.greedy ? "" : "?");
        case Node::Kind::Group:
            return "group" + (node.value == 0 ? "" : std::to_string(node.value)) +
                   (node.value == 0 ? "" : tree_.groupNames.at(node.value - 1));
        case Node::Kind::Character:
            return number(node.value);
        case Node::Kind::Class:
            return ranges(tree_.sets.at(node.value));
        case Node::Kind::TextStart:
            return "^";
        case Node::Kind::TextEnd:
            return "$";
        case Node::Kind::WordBoundary:
            return mark + "boundary";
        case Node::Kind::LookAhead:
            return mark + "ahead" + std::to_string(node.value);
        case Node::Kind::LookBehind:
            return mark + "behind" + std::to_string(node.value);
        }
        return "?";
    }

    static std::string ranges(const CharSet& set) {
        std::string text = "[";
        for (const CodePointRange& range : set.ranges())
            text += number(range.first) + "-" + number(range.last);
        return text + "]";
    }

    const SyntaxTree& tree_;
};

} // namespace

TEST(Syntax, tellsAllOfAPattern) {
    struct Case {
        std::string source;
        std::string tree;
    };
    const std::vector<Case> cases = {
        {"", "seq"},
        {"a", "a"},
        {"^ab|$", "or(seq(^ a b) $)"},
        {"a*b+?c??d{2}e{3,}?f{4,5}", "seq(0..(a) 1..?(b) 0..1?(c) 2..2(d) 3..?(e) 4..5(f))"},
        {"(a)(?:b)(?<year>(c))()", "seq(group1(a) group(b) group2year(group3(c)) group4(seq))"},
        {"(?<n>a|)|(?<n>b)", "or(group1n(or(a seq)) group2n(b))"},
        {"[a-cb-d9]\\d[^\\u{1}-\\u{10FFFF}][]", "seq([9-9a-d] [0-9] 0 [])"},
        {"[ab][a-b][x]", "seq([a-b] [a-b] x)"},
        {"\\bx\\B", "seq(boundary x !boundary)"},
        {"(?=a(?<!b))(?!c)*(?<=d)", "seq(ahead1(seq(a !behind0(b))) 0..(!ahead2(c)) behind3(d))"},
        {"(?:^){3,4000000000}", "3..4000000000(group(^))"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.source);
        const SyntaxTree tree = parse(each.source);
        EXPECT_EQ(Printer(tree).print(tree.root), each.tree);
    }
}

/// The texts of a node and of all below it.
void collectTexts(const std::string& source, const Node& node, std::string& texts) {
    texts += source.substr(node.begin, node.end - node.begin) + '\n';
    for (const Node& child : node.children)
        collectTexts(source, child, texts);
}

TEST(Syntax, tellsWhereNodesStand) {
    const std::string source = "^(é|[^a]{2}?c|)x*(?=\\d)$";
    std::string texts;
    collectTexts(source, parse(source).root, texts);
    EXPECT_EQ(
        texts,
        "^(é|[^a]{2}?c|)x*(?=\\d)$\n^\n(é|[^a]{2}?c|)\né|[^a]{2}?c|\né\n[^a]{2}?c\n[^a]{2}?\n[^a]\nc\n\n"
        "x*\nx\n(?=\\d)\n\\d\n$\n");
}

TEST(Syntax, tellsHowClassesAndEscapesAreSpelt) {
    const std::string source = "\\.[^a-z\\d\\-][\\w-.\\x41-][]\\/";
    Spelling spelling;
    const SyntaxTree tree = parse(source, spelling);
    EXPECT_EQ(Printer(tree).print(tree.root), Printer(tree).print(parse(source).root));
    std::string texts;
    for (const Spelling::Class& members : spelling.classes) {
        texts += source.substr(members.begin, members.end - members.begin) + (members.negated ? "!" : "");
        for (const Spelling::ClassEntry& entry : members.entries)
            texts += ' ' + source.substr(entry.begin, entry.end - entry.begin) + '=' + number(entry.first) +
                     '-' + number(entry.last) + '+' + std::to_string(entry.named.ranges().size());
        texts += '\n';
    }
    EXPECT_EQ(texts, "[^a-z\\d\\-]! a-z=a-z+0 \\d=0-0+1 \\-=---+0\n"
                     "[\\w-.\\x41-] \\w=0-0+4 -=---+0 .=.-.+0 \\x41=A-A+0 -=---+0\n[]\n");
    texts.clear();
    for (const Spelling::IdentityEscape& escape : spelling.escapes)
        texts += source.substr(escape.begin, 2) + (escape.inClass ? "in " : " ");
    EXPECT_EQ(texts, "\\. \\-in \\/ ");
}

TEST(Syntax, isAsDeepAsItSays) {
    std::string source = "b";
    for (std::size_t i = 0; i < maxNesting; ++i)
        source = "a|b(?=" + source + ")*";
    const SyntaxTree tree = parse(source);
    std::size_t depth = 0;
    for (const Node* node = &tree.root; node != nullptr; ++depth)
        node = node->children.empty() ? nullptr : &node->children.back();
    EXPECT_EQ(depth, 4 * maxNesting + 1);
}

} // namespace specloom::regex
