package com.specloom.petStore;

import jakarta.validation.constraints.NotNull;

public record PetAddedRequestDTO (
    @NotNull Integer id
) {
    public PetAddedRequestDTO() {
        this(
            42
        );
    }
}
