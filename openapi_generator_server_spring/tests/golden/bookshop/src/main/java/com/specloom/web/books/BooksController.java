package com.specloom.web.books;

import com.specloom.domain.books.BooksService;
import com.specloom.domain.books.ListBooksParamDTO;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Pattern;
import java.util.List;
import org.springframework.web.bind.annotation.GetMapping;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.PutMapping;
import org.springframework.web.bind.annotation.RequestParam;
import org.springframework.web.bind.annotation.RestController;

@RestController
class BooksController {
    private final BooksService service;

    BooksController(BooksService service) {
        this.service = service;
    }

    @GetMapping("/books")
    @NotNull
    List<Object> handleListBooks(@RequestParam(required=false) @NotNull Integer page, @RequestParam(required=false) @NotNull List<String> genre, @RequestParam(required=false) @NotNull ListBooksParamDTO filter) {
        return this.service.listBooks(page, genre, filter);
    }

    @PutMapping("/books/{isbn}/cover")
    void handlePutCover(@PathVariable @NotNull @Pattern(regexp = "^97[89][0-9]{10}$") String isbn) {
        this.service.putCover(isbn);
    }
}
