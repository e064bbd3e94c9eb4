package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record String2 (
    @NotNull String value
) {
    public String2() {
        this(
            "Hello"
        );
    }
}
