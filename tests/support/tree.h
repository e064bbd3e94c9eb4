#pragma once

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::test_support {

/// A document as plain data, the common ground of different parsers. Numbers are kept as text.
struct Tree {
    enum class Kind : std::uint8_t { Null, Boolean, Number, String, Array, Object };

    Kind kind = Kind::Null;
    std::string text;           ///< of a scalar, as its source had it ("~" is a Null of that text)
    std::vector<Tree> elements; ///< of an array, or the values of an object
    /// Of an object: the key of each element. Each comes once, at its first place with its last value.
    std::vector<std::string> keys;

    /// Stores a member; of a key that comes again the value is replaced.
    void set(std::string key, Tree value);
};

/// The JSON pointer of an element or member of `parent`, which stands at `pointer`.
[[nodiscard]] std::string childPointer(const std::string& pointer, const Tree& parent, std::size_t index);

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
