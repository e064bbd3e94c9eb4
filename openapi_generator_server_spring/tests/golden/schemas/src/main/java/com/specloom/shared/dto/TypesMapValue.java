package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record TypesMapValue (
    @NotNull String entry
) {
    public TypesMapValue() {
        this(
            "Hello"
        );
    }
}
