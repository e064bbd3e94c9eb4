package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record TypesOwners (
    @NotNull PetOwner2 one,
    @NotNull PetOwner two
) {
    public TypesOwners() {
        this(
            new PetOwner2(),
            new PetOwner()
        );
    }
}
