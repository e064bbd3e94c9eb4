package com.specloom.domain.books;

import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Pattern;
import java.util.List;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.RequestParam;

@Service
public interface BooksService {
    List<Object> listBooks(@RequestParam(required=false) @NotNull Integer page, @RequestParam(required=false) @NotNull List<String> genre, @RequestParam(required=false) @NotNull ListBooksParamDTO filter);

    void putCover(@PathVariable @NotNull @Pattern(regexp = "^97[89][0-9]{10}$") String isbn);
}
