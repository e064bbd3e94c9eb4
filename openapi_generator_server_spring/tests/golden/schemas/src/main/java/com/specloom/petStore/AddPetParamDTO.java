package com.specloom.petStore;

import jakarta.validation.constraints.NotNull;

public record AddPetParamDTO (
    @NotNull String kind
) {
    public AddPetParamDTO() {
        this(
            "Hello"
        );
    }
}
