package com.specloom.domain.books;

import jakarta.validation.constraints.NotNull;
import java.util.List;

public record PutCoverRequestDTO (
    Object image,
    @NotNull List<String> tags
) {
    public PutCoverRequestDTO() {
        this(
            new Object(),
            List.of()
        );
    }
}
