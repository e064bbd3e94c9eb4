#include "test_support/tree.h"

#include "test_support/exact_decimal.h"

#include <algorithm>     // std::find_if
#include <unordered_map> // std::unordered_map

namespace specloom::test_support {

namespace {

constexpr const char* kindNames[] = {"null", "boolean", "number", "string", "array", "object"};

[[nodiscard]] std::string escaped(std::string_view key) {
    std::string out;
    for (const char c : key) {
        if (c == '~')
            out += "~0";
        else if (c == '/')
            out += "~1";
        else
            out += c;
    }
    return out;
}

/// Recursive: it looks at documents whose nesting is known to be shallow.
class Comparison {
  public:
    Comparison(KeyOrder order, std::vector<Difference>& found) : order_(order), found_(found) {}

    void compare(const std::string& pointer, const Tree& expected, const Tree& actual) {
        if (expected.kind != actual.kind) {
            add(pointer, expected, actual, expected.text, actual.text);
            return;
        }
        switch (expected.kind) {
        case Tree::Kind::Null:
            return;
        case Tree::Kind::Boolean:
        case Tree::Kind::String:
            if (expected.text != actual.text)
                add(pointer, expected, actual, expected.text, actual.text);
            return;
        case Tree::Kind::Number:
            if (!sameNumber(expected.text, actual.text))
                add(pointer, expected, actual, expected.text, actual.text);
            return;
        case Tree::Kind::Array:
            compareElements(pointer, expected, actual);
            return;
        case Tree::Kind::Object:
            compareMembers(pointer, expected, actual);
            return;
        }
    }

  private:
    void add(const std::string& pointer, const Tree& expected, const Tree& actual, const std::string& was,
             const std::string& is) {
        found_.push_back({pointer, expected.kind, actual.kind, was, is});
    }

    void compareElements(const std::string& pointer, const Tree& expected, const Tree& actual) {
        if (expected.elements.size() != actual.elements.size()) {
            add(pointer, expected, actual, std::to_string(expected.elements.size()) + " elements",
                std::to_string(actual.elements.size()) + " elements");
            return;
        }
        for (std::size_t i = 0; i < expected.elements.size(); ++i)
            compare(pointer + "/" + std::to_string(i), expected.elements[i], actual.elements[i]);
    }

    void compareMembers(const std::string& pointer, const Tree& expected, const Tree& actual) {
        if (expected.members.size() != actual.members.size())
            add(pointer, expected, actual, std::to_string(expected.members.size()) + " members",
                std::to_string(actual.members.size()) + " members");
        std::unordered_map<std::string_view, std::size_t> places;
        for (std::size_t i = 0; i < actual.members.size(); ++i)
            places.emplace(actual.members[i].first, i);
        for (std::size_t i = 0; i < expected.members.size(); ++i) {
            const auto& [key, value] = expected.members[i];
            const auto place = places.find(key);
            if (place == places.end())
                add(pointer, expected, actual, "member " + key, "no such member");
            else if (order_ == KeyOrder::Matters && place->second != i)
                add(pointer, expected, actual, "member " + key + " at " + std::to_string(i),
                    "at " + std::to_string(place->second));
            else
                compare(pointer + "/" + escaped(key), value, actual.members[place->second].second);
        }
    }

    KeyOrder order_;
    std::vector<Difference>& found_;
};

} // namespace

void Tree::set(std::string key, Tree value) {
    const auto same = [&](const auto& member) { return member.first == key; };
    if (const auto found = std::find_if(members.begin(), members.end(), same); found != members.end())
        found->second = std::move(value);
    else
        members.emplace_back(std::move(key), std::move(value));
}

std::vector<Difference> differences(const Tree& expected, const Tree& actual, KeyOrder order) {
    std::vector<Difference> found;
    Comparison(order, found).compare("", expected, actual);
    return found;
}

std::string describe(const Difference& difference) {
    return difference.pointer + ": " + kindNames[static_cast<int>(difference.expectedKind)] + " \"" +
           difference.expected + "\" became " + kindNames[static_cast<int>(difference.actualKind)] + " \"" +
           difference.actual + "\"";
}

} // namespace specloom::test_support
