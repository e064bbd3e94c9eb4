package com.specloom.domain.shared.dto;

import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Pattern;

public record NewOrderLinesItem (
    @NotNull @Pattern(regexp = "^97[89][0-9]{10}$") String isbn,
    @NotNull Integer quantity
) {
    public NewOrderLinesItem() {
        this(
            "Hello",
            42
        );
    }
}
