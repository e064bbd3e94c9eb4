package com.specloom.domain.shared.dto;

import jakarta.validation.constraints.NotNull;

public record Problem (
    @NotNull Integer status,
    @NotNull String title,
    @NotNull String type
) {
    public Problem() {
        this(
            42,
            "Hello",
            "Hello"
        );
    }
}
