package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record PetOwner (
    @NotNull String until
) {
    public PetOwner() {
        this(
            "Hello"
        );
    }
}
