package com.specloom.web.orders;

import org.junit.jupiter.api.Test;

class OrdersControllerTest {
    @Test
    void testCreateOrder() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testGetOrder() {
        // ADD YOUR CODE HERE
    }
}
