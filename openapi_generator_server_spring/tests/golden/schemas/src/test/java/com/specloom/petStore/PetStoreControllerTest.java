package com.specloom.petStore;

import org.junit.jupiter.api.Test;

class PetStoreControllerTest {
    @Test
    void testAddPet() {
        // ADD YOUR CODE HERE
    }
}
