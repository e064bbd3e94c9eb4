package com.specloom.adminArea;

import org.junit.jupiter.api.Test;

class AdminAreaControllerTest {
    @Test
    void testHidden() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testDropPets() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testShared() {
        // ADD YOUR CODE HERE
    }
}
