#pragma once

#include <cstdint>     // std::uint8_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::pair
#include <vector>      // std::vector

namespace specloom::test_support {

/// A document as plain data, the common ground of different parsers. Numbers are kept as text.
struct Tree {
    enum class Kind : std::uint8_t { Null, Boolean, Number, String, Array, Object };

    Kind kind = Kind::Null;
    std::string text; ///< of a scalar, as its source had it ("~" is a Null of that text)
    std::vector<Tree> elements;
    std::vector<std::pair<std::string, Tree>>
        members; ///< each key once, at its first place with its last value

    /// Stores a member; of a key that comes again the value is replaced.
    void set(std::string key, Tree value);
};

/// Two values at one place of two documents that are not the same.
struct Difference {
    std::string pointer; ///< JSON pointer of the place
    Tree::Kind expectedKind;
    Tree::Kind actualKind;
    std::string expected; ///< text of the scalar, or what is wrong with a container
    std::string actual;
};

enum class KeyOrder : std::uint8_t { Matters, Free };

/// All differences, in the order of `expected`. Numbers are the same when their exact decimal values are.
[[nodiscard]] std::vector<Difference> differences(const Tree& expected, const Tree& actual, KeyOrder order);

/// For messages.
[[nodiscard]] std::string describe(const Difference& difference);

} // namespace specloom::test_support
