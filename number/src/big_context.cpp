#include "number/big_context.h"

#include "number/radix.h"

#include <cstdlib> // std::free, std::realloc
#include <new>     // std::bad_alloc

namespace specloom::number {
namespace {

void* standardReallocate(void*, void* block, std::size_t size) {
    if (size != 0)
        return std::realloc(block, size);
    std::free(block);
    return nullptr;
}

} // namespace

BigContext& BigContext::instance() {
    static BigContext& context = *new BigContext;
    return context;
}

void BigContext::setAllocator(Reallocate function, void* opaque) noexcept {
    reallocate_ = function;
    opaque_ = opaque;
}

void* BigContext::reallocate(void* block, std::size_t size) noexcept {
    return (reallocate_ != nullptr ? reallocate_ : standardReallocate)(opaque_, block, size);
}

std::size_t BigContext::cachedPowers() const noexcept {
    return powers_.size();
}

const Natural& BigContext::power(unsigned radix, unsigned level) {
    const std::uint64_t key = std::uint64_t{radix} << 32 | level;
    if (const auto found = powers_.find(key); found != powers_.end())
        return found->second;
    Natural result;
    if (level == 0) {
        result.limbs.resize(1);
        result.limbs[0] = limbRadix(radix);
        result.length = 1;
    } else {
        const Natural& root = power(radix, level - 1);
        result.limbs.resize(2 * root.length);
        multiply(result.limbs.data(), root.limbs.data(), root.length, root.limbs.data(), root.length);
        result.trim(2 * root.length);
    }
    return powers_.emplace(key, std::move(result)).first->second;
}

} // namespace specloom::number
