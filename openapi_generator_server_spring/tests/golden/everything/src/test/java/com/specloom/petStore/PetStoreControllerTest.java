package com.specloom.petStore;

import org.junit.jupiter.api.Test;

class PetStoreControllerTest {
    @Test
    void testRoot() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testPetOfOwner() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testPetOfOwnerHead() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testListPets() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testReplacePets() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testAddPet() {
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
    void testMendPets() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testTracePets() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testLatestPet() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testGetPet() {
        // ADD YOUR CODE HERE
    }
}
