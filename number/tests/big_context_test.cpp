#include "number/big_context.h"
#include "number/big_float.h"
#include "number/number.h"
#include "test_support/failure.h"

#include <cstdlib>    // std::free, std::realloc
#include <functional> // std::function
#include <stdexcept>  // std::runtime_error
#include <string>     // std::string
#include <vector>     // std::vector

#include <gtest/gtest.h>

namespace specloom::number {
namespace {

using test_support::failureOf;

/// Blocks of the standard library, of which only so many are given out.
class FailingAllocator {
  public:
    explicit FailingAllocator(int blocks) : blocks_(blocks) {
        BigContext::instance().setAllocator(&FailingAllocator::reallocate, this);
    }
    FailingAllocator(const FailingAllocator&) = delete;
    FailingAllocator& operator=(const FailingAllocator&) = delete;
    ~FailingAllocator() { BigContext::instance().setAllocator(nullptr, nullptr); }

    [[nodiscard]] bool failed() const { return failed_; }

  private:
    static void* reallocate(void* opaque, void* block, std::size_t size) {
        auto* self = static_cast<FailingAllocator*>(opaque);
        if (size == 0) {
            std::free(block);
            return nullptr;
        }
        if (self->blocks_ == 0) {
            self->failed_ = true;
            return nullptr;
        }
        --self->blocks_;
        return std::realloc(block, size);
    }

    int blocks_;
    bool failed_ = false;
};

BigFloat big(std::string_view text) {
    BigFloat value;
    BigFloat::fromText(value, text, nullptr, 10, 1000, 0);
    return value;
}

// Every operation is run with 0, 1, 2... blocks until it has enough of them. Whenever it has not, the result
// must be not-a-number with the status that says so, and nothing may be lost.
TEST(BigContext, everyOperationSurvivesTheLackOfMemory) {
    const BigFloat a = big("1234567890123456789012345678901234567890.5");
    const BigFloat b = big("0.333333333333333333333333333333333333333333");
    const std::string longText = "1" + std::string(3000, '7');
    const std::string halfWay = "1." + std::string(2000, '0') + "1";
    struct Case {
        const char* name;
        std::function<Status(BigFloat&)> run;
    };
    const std::vector<Case> cases = {
        {"setUInt", [](BigFloat& r) { return r.setUInt(5); }},
        {"setInt", [](BigFloat& r) { return r.setInt(-5); }},
        {"setDouble", [](BigFloat& r) { return r.setDouble(0.1); }},
        {"copy", [&](BigFloat& r) { return r.copy(a); }},
        {"round", [&](BigFloat& r) { return r.copy(a) | BigFloat::round(r, 3, 0); }},
        {"add", [&](BigFloat& r) { return BigFloat::add(r, a, b, 1000, 0); }},
        {"sub", [&](BigFloat& r) { return BigFloat::sub(r, a, b, 1000, 0); }},
        {"addInt", [&](BigFloat& r) { return BigFloat::addInt(r, a, 7, 1000, 0); }},
        {"mul", [&](BigFloat& r) { return BigFloat::mul(r, a, b, 1000, 0); }},
        {"div", [&](BigFloat& r) { return BigFloat::div(r, a, b, 1000, 0); }},
        {"powInt", [](BigFloat& r) { return BigFloat::powInt(r, 7, 300, 1000, 0); }},
        {"mulPowRadix", [&](BigFloat& r) { return BigFloat::mulPowRadix(r, a, 10, -5000, 1000, 0); }},
        {"overflow", [](BigFloat& r) { return BigFloat::fromText(r, "1e400000000", nullptr, 10, 1000, 1); }},
        {"fromText",
         [&](BigFloat& r) { return BigFloat::fromText(r, longText, nullptr, 10, exactPrecision, 0); }},
        {"long fromText", [&](BigFloat& r) { return BigFloat::fromText(r, halfWay, nullptr, 10, 1000, 0); }},
        {"hex fromText", [](BigFloat& r) { return BigFloat::fromText(r, "abc.def", nullptr, 16, 1000, 0); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        BigFloat expected;
        const Status expectedStatus = c.run(expected);
        ASSERT_FALSE(expected.isNaN());
        int blocks = 0;
        for (;; ++blocks) {
            ASSERT_LT(blocks, 100000);
            FailingAllocator allocator(blocks);
            BigFloat r;
            const Status status = c.run(r);
            if (!allocator.failed()) {
                EXPECT_EQ(status, expectedStatus);
                EXPECT_EQ(BigFloat::compareFull(r, expected), 0);
                break;
            }
            EXPECT_NE(status & statusOutOfMemory, 0U) << blocks << " blocks";
            EXPECT_TRUE(r.isNaN()) << blocks << " blocks";
        }
        EXPECT_GT(blocks, 0) << "an operation that needs no memory tests nothing";
    }
}

TEST(BigContext, textThrowsWhenMemoryLacks) {
    const Number number = Number::fromText("1234567890123456789012345.678");
    const std::string expected = number.toString();
    int blocks = 0;
    for (;; ++blocks) {
        ASSERT_LT(blocks, 100000);
        FailingAllocator allocator(blocks);
        std::string text;
        try {
            text = number.toString();
        } catch (const std::bad_alloc&) {
            EXPECT_TRUE(allocator.failed());
            continue;
        }
        ASSERT_FALSE(allocator.failed());
        EXPECT_EQ(text, expected);
        break;
    }
    EXPECT_GT(blocks, 0);
}

TEST(BigContext, literalsWithoutMemoryAreRefused) {
    const FailingAllocator allocator(0);
    EXPECT_EQ(Number::fromText("12345678901234567890").kind(), NumberKind::Unsigned)
        << "machine kinds need none";
    const std::string text = "123456789012345678901";
    EXPECT_EQ(failureOf<std::runtime_error>([&] { return Number::fromText(text); }), "Invalid number format");
    EXPECT_EQ(failureOf<std::runtime_error>([&] { return Number::tryParse(text); }), "Invalid number format");
}

TEST(BigContext, countsBigNumbersAndForgetsPowersWithTheLast) {
    BigContext& context = BigContext::instance();
    ASSERT_EQ(context.liveCount(), 0U);
    {
        const Number machine(std::int64_t{5});
        EXPECT_EQ(context.liveCount(), 0U);
        const Number one = Number::fromText("1234567890123456789012345");
        EXPECT_EQ(context.liveCount(), 1U);
        Number two = one;
        EXPECT_EQ(context.liveCount(), 2U);
        const Number three = std::move(two);
        EXPECT_EQ(context.liveCount(), 2U);
        two = std::int64_t{1};
        EXPECT_EQ(context.liveCount(), 2U);

        BigFloat value;
        BigFloat::fromText(value, std::string(5000, '3'), nullptr, 10, exactPrecision, 0);
        EXPECT_GT(context.cachedPowers(), 0U);
    }
    EXPECT_EQ(context.liveCount(), 0U);
    EXPECT_EQ(context.cachedPowers(), 0U);
}

} // namespace
} // namespace specloom::number
