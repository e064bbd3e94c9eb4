// Every real document of the corpora: nothing but key orders changes, and the orders are those of the
// recommended configuration. The kind of an object is determined by what tests know of the structure of
// documents.

#include "openapi_format/formatter.h"
#include "test_support/corpora.h"
#include "test_support/openapi_structure.h"

#include <algorithm>   // std::find, std::sort
#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_format {
namespace {

using Keys = std::vector<std::string_view>;

struct Seen {
    std::size_t ordered = 0, payloads = 0;
};

/// The order of `before` with the keys of `list` in front.
Keys inFixedOrder(const Keys& before, const std::vector<std::string>& list) {
    Keys expected;
    for (const std::string& name : list) {
        if (std::find(before.begin(), before.end(), name) != before.end())
            expected.push_back(name);
    }
    for (const std::string_view key : before) {
        if (std::find(list.begin(), list.end(), key) == list.end())
            expected.push_back(key);
    }
    return expected;
}

Keys inOrder(Keys before, const PropertyOrder& order) {
    if (order.mode() == PropertyOrder::Mode::Fixed)
        return inFixedOrder(before, order.keys());
    if (order.mode() == PropertyOrder::Mode::Sorted)
        std::sort(before.begin(), before.end());
    return before;
}

Keys keysOf(const jv::JVDocument& document, const jv::JV& object) {
    Keys keys;
    for (const jv::Member& member : document.orderedMembers(&object))
        keys.push_back(member.key);
    return keys;
}

/// Whether the kind of an object is no matter of taste: a reference with siblings may be taken either way.
bool isPlain(const jv::JV& object) {
    return !object.has("$ref") || object.size() == 1;
}

class Comparison {
  public:
    Comparison(const jv::JVDocument& before, const jv::JVDocument& after, Seen& seen)
        : before_(before), after_(after), seen_(seen) {}

    void run() {
        open_.push_back({before_.root(), after_.root(), Kind::OpenAPI});
        while (!open_.empty()) {
            const auto [value, other, place] = open_.back();
            open_.pop_back();
            if (value->isArray()) {
                for (std::size_t i = 0; i < value->size(); ++i)
                    open_.push_back({value->elements()[i], other->elements()[i], place});
            } else if (value->isObject() && isPlain(*value)) {
                const Kind kind = test_support::kindOf(place, *value);
                compare(*value, *other, value->has("$ref") ? Kind::Any : kind);
                openMembers(*value, *other, kind);
            }
        }
    }

  private:
    using Kind = test_support::ObjectKind;

    struct Open {
        const jv::JV* value;
        const jv::JV* other;
        Kind kind; ///< of the value or of its elements
    };

    void compare(const jv::JV& object, const jv::JV& other, Kind kind) {
        const Keys before = keysOf(before_, object);
        const Keys after = keysOf(after_, other);
        const PropertyOrder order =
            kind == Kind::Any ? PropertyOrder() : recommended_.orderOf(test_support::nameOf(kind));
        EXPECT_EQ(after, order.isSet() ? inOrder(before, order) : before)
            << test_support::nameOf(kind) << " at " << object.pointer();
        (kind == Kind::Any ? seen_.payloads : seen_.ordered) += before.size() > 1;
    }

    void openMembers(const jv::JV& object, const jv::JV& other, Kind kind) {
        for (const jv::Member member : object.members()) {
            const jv::JV* counterpart = other.get(member.key);
            const test_support::MemberInfo* info = test_support::findMember(kind, member.key);
            const bool isPayload = info == nullptr || info->kind == Kind::Text;
            const Kind below = isPayload ? Kind::Any : info->kind;
            if (isPayload || info->shape != test_support::Shape::Map || below == Kind::Any)
                open_.push_back({member.value, counterpart, below});
            else if (member.value->isObject())
                for (const jv::Member entry : member.value->members())
                    open_.push_back({entry.value, counterpart->get(entry.key), below});
        }
    }

    const jv::JVDocument& before_;
    const jv::JVDocument& after_;
    Seen& seen_;
    const Configuration recommended_ = Configuration::recommended();
    std::vector<Open> open_;
};

TEST(Corpora, everyDocumentTakesTheRecommendedOrder) {
    SPECLOOM_NEEDS_CORPORA();
    const Formatter formatter;
    Seen seen;
    for (const auto& file : test_support::filesBelow(test_support::corporaFolder() / "openapi", "")) {
        const std::string path = file.string();
        SCOPED_TRACE(path);
        const jv::LoadedDocument source = jv::loadDocument(path);
        const jv::LoadedDocument result = jv::loadDocument(path);
        formatter.run(*result.document);
        EXPECT_TRUE(result.document->root()->equals(*source.document->root()));
        Comparison(*source.document, *result.document, seen).run();
    }
    // A structure that leads nowhere would make all of the above hold.
    EXPECT_GT(seen.ordered, 50000u);
    EXPECT_GT(seen.payloads, 5000u);
}

} // namespace
} // namespace specloom::openapi_format
