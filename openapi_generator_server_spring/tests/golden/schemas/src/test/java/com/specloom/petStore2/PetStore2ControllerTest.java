package com.specloom.petStore2;

import org.junit.jupiter.api.Test;

class PetStore2ControllerTest {
    @Test
    void testList_pets() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testReplacePets() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testPutReport() {
        // ADD YOUR CODE HERE
    }
}
