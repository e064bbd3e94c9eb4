package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record Object2 (
    @NotNull String2 string
) {
    public Object2() {
        this(
            new String2()
        );
    }
}
