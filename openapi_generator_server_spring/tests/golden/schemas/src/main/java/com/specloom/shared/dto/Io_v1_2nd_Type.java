package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record Io_v1_2nd_Type (
    @NotNull String a
) {
    public Io_v1_2nd_Type() {
        this(
            "Hello"
        );
    }
}
