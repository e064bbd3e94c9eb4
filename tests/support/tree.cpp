#include "test_support/tree.h"

#include "test_support/exact_decimal.h"

#include <algorithm>     // std::find
#include <unordered_map> // std::unordered_map

namespace specloom::test_support {

namespace {

constexpr const char* kindNames[] = {"null", "boolean", "number", "string", "array", "object"};

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
            compare(childPointer(pointer, expected, i), expected.elements[i], actual.elements[i]);
    }

    void compareMembers(const std::string& pointer, const Tree& expected, const Tree& actual) {
        if (expected.keys.size() != actual.keys.size())
            add(pointer, expected, actual, std::to_string(expected.keys.size()) + " members",
                std::to_string(actual.keys.size()) + " members");
        std::unordered_map<std::string_view, std::size_t> places;
        for (std::size_t i = 0; i < actual.keys.size(); ++i)
            places.emplace(actual.keys[i], i);
        for (std::size_t i = 0; i < expected.keys.size(); ++i) {
            const std::string& key = expected.keys[i];
            const auto place = places.find(key);
            if (place == places.end())
                add(pointer, expected, actual, "member " + key, "no such member");
            else if (order_ == KeyOrder::Matters && place->second != i)
                add(pointer, expected, actual, "member " + key + " at " + std::to_string(i),
                    "at " + std::to_string(place->second));
            else
                compare(childPointer(pointer, expected, i), expected.elements[i],
                        actual.elements[place->second]);
        }
    }

    KeyOrder order_;
    std::vector<Difference>& found_;
};

} // namespace

void Tree::set(std::string key, Tree value) {
    if (const auto found = std::find(keys.begin(), keys.end(), key); found != keys.end()) {
        elements[static_cast<std::size_t>(found - keys.begin())] = std::move(value);
    } else {
        keys.push_back(std::move(key));
        elements.push_back(std::move(value));
    }
}

std::string childPointer(const std::string& pointer, const Tree& parent, std::size_t index) {
    if (parent.kind == Tree::Kind::Array)
        return pointer + "/" + std::to_string(index);
    std::string child = pointer + "/";
    for (const char c : parent.keys[index]) {
        if (c == '~')
            child += "~0";
        else if (c == '/')
            child += "~1";
        else
            child += c;
    }
    return child;
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
