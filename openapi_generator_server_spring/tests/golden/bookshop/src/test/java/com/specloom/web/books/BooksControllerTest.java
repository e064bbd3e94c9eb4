package com.specloom.web.books;

import org.junit.jupiter.api.Test;

class BooksControllerTest {
    @Test
    void testListBooks() {
        // ADD YOUR CODE HERE
    }

    @Test
    void testPutCover() {
        // ADD YOUR CODE HERE
    }
}
