package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record Failure (
    @NotNull Error error
) {
    public Failure() {
        this(
            new Error()
        );
    }
}
