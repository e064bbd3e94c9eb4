#include "openapi_generator_server_express/express_route.h"

#include <gtest/gtest.h>

namespace specloom::openapi_generator::server_express {
namespace {

// Whether Express takes them so is for the test of running servers to say, which has more of them.
TEST(ExpressRoute, standsForItsTemplate) {
    EXPECT_EQ(toExpressRoute(""), "");
    EXPECT_EQ(toExpressRoute("/a/{b}/c/{d}"), "/a/:b/c/:d");
    EXPECT_EQ(toExpressRoute("/users('{id}')"), R"(/users\(':id'\))");
    EXPECT_EQ(toExpressRoute("/{pet-id}{größe}/{"), "/:pet_id:gr__e/%7B");
    EXPECT_EQ(toExpressRoute("/{a}b/{}{c}:d é"), R"(/:a[b]/%7B%7D:c\:d%20%C3%A9)");
}

} // namespace
} // namespace specloom::openapi_generator::server_express
