package com.specloom.petsId;

import org.junit.jupiter.api.Test;

class PetsIdControllerTest {
    @Test
    void testDropPet() {
        // ADD YOUR CODE HERE
    }
}
