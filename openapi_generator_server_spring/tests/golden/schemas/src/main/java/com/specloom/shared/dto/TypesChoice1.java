package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record TypesChoice1 (
    @NotNull String one
) {
    public TypesChoice1() {
        this(
            "Hello"
        );
    }
}
