package com.specloom.shared;

import org.junit.jupiter.api.Test;

class SharedControllerTest {
    @Test
    void testGet() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testPutReport() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testReport() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testTypes() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testFlag() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testText() {
        // ADD YOUR CODE HERE
    }
}
