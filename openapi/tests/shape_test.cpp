// What cannot be fed by the table of shapes is held against it: the visitor's way through objects other than
// schemas, and the order in which their members are written.

#include "openapi/node_visitor.h"
#include "openapi/reader.h"
#include "openapi/shape.h"
#include "openapi/writer.h"

#include <map>     // std::map
#include <set>     // std::set
#include <string>  // std::string
#include <utility> // std::pair
#include <vector>  // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

std::unique_ptr<ReadResult> readGolden(const std::string& name) {
    return readFile(SPECLOOM_TEST_DIR "/tests/golden/" + name,
                    std::make_shared<const SchemaFormatRegistry>());
}

/// Calls visit(value, kind) for what stands in the places of objects, references apart.
template <typename Visit>
void walkByShape(const jv::JV& root, Visit visit) {
    std::vector<std::pair<const jv::JV*, ObjectKind>> open{{&root, ObjectKind::OpenAPI}};
    while (!open.empty()) {
        const auto [value, kind] = open.back();
        open.pop_back();
        if (value->isObject() && value->has("$ref"))
            continue;
        visit(*value, kind);
        if (!value->isObject())
            continue;
        for (const jv::Member entry : value->members()) {
            const MemberShape* member = findMember(kind, entry.key);
            if (const auto& entries = shapeOf(kind).entries; entries && !entry.key.starts_with("x-"))
                open.emplace_back(entry.value, *entries);
            if (member == nullptr || member->content != Content::Object || !member->isRead)
                continue;
            if (member->arrangement == Arrangement::Map)
                for (const jv::Member named : entry.value->members())
                    open.emplace_back(named.value, member->kind);
            else if (member->arrangement == Arrangement::List)
                for (const jv::JV* element : entry.value->elements())
                    open.emplace_back(element, member->kind);
            else
                open.emplace_back(entry.value, member->kind);
        }
    }
}

TEST(Shape, isWhereTheVisitorGoes) {
    class Recorder final : public NodeVisitHandler {
      public:
        using NodeVisitHandler::visit;
        void visit(const Node& node) override {
            if (node.source() != nullptr)
                kinds.emplace(node.source()->pointer(), shapeOf(kindOf(node.type())).name);
        }
        std::map<std::string, std::string_view> kinds;
    };
    std::set<std::string_view> met;
    for (const std::string name : {"every-object.yaml", "every-member-3.0.yaml", "every-member-3.1.yaml"}) {
        const auto result = readGolden(name);
        Recorder visited;
        NodeVisitor(visited).visit(result->root());
        std::map<std::string, std::string_view> expected;
        walkByShape(*result->source().root(), [&](const jv::JV& value, ObjectKind kind) {
            expected.emplace(value.pointer(), shapeOf(kind).name);
            met.insert(shapeOf(kind).name);
        });
        EXPECT_EQ(visited.kinds, expected) << name;
    }
    EXPECT_EQ(met.size(), objectKindCount - 1) << "all but references";
}

TEST(Shape, isTheOrderOfWriting) {
    std::set<const MemberShape*> written;
    for (const std::string name : {"every-object.yaml", "every-member-3.0.yaml", "every-member-3.1.yaml"}) {
        const auto document = Writer().write(readGolden(name)->root());
        walkByShape(*document->root(), [&](const jv::JV& value, ObjectKind kind) {
            const MemberShape* last = nullptr;
            for (const jv::Member& entry : document->orderedMembers(&value)) {
                const bool isRenamed = kind == ObjectKind::Schema && entry.key == "$defs";
                const MemberShape* member = findMember(kind, isRenamed ? "definitions" : entry.key);
                if (member == nullptr) {
                    EXPECT_TRUE(entry.key.starts_with("x-") || shapeOf(kind).members.empty())
                        << entry.value->pointer();
                    continue;
                }
                EXPECT_LT(last, member) << entry.value->pointer();
                last = member;
                written.insert(member);
            }
        });
    }
    for (const ObjectShape& shape : objectShapes)
        for (const MemberShape& member : shape.members)
            EXPECT_EQ(written.contains(&member),
                      member.written != Written::Never && shape.kind != ObjectKind::Reference)
                << shape.name << "." << member.name;
}

} // namespace
} // namespace specloom::openapi
