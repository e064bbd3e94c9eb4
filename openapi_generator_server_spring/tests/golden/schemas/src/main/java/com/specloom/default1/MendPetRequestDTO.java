package com.specloom.default1;

import jakarta.validation.constraints.NotNull;

public record MendPetRequestDTO (
    @NotNull String name
) {
    public MendPetRequestDTO() {
        this(
            "Hello"
        );
    }
}
