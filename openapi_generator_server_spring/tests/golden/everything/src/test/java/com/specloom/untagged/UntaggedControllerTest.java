package com.specloom.untagged;

import org.junit.jupiter.api.Test;

class UntaggedControllerTest {
    @Test
    void testUntagged() {
        // ADD YOUR CODE HERE
    }
}
