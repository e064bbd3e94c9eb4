package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record Sort (
    @NotNull String by,
    @NotNull Boolean down
) {
    public Sort() {
        this(
            "Hello",
            true
        );
    }
}
