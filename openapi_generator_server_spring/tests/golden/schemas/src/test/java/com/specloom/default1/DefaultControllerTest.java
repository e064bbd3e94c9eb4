package com.specloom.default1;

import org.junit.jupiter.api.Test;

class DefaultControllerTest {
    @Test
    void testGetPetsIdFromDate() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testWait() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testPetOptions() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testPetHead() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testMendPet() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testTracePet() {
        // ADD YOUR CODE HERE
    }
}
