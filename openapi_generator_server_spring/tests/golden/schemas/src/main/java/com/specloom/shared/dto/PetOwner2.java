package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record PetOwner2 (
    @NotNull String since
) {
    public PetOwner2() {
        this(
            "Hello"
        );
    }
}
