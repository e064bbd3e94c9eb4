package com.specloom.petStore;

import jakarta.validation.constraints.NotNull;

public record AddPetNewPetRequestDTOOwner (
    @NotNull String name
) {
    public AddPetNewPetRequestDTOOwner() {
        this(
            "Hello"
        );
    }
}
