package com.specloom.petStore2;

import jakarta.validation.constraints.NotNull;

public record List_petsGeoPointParamDTO (
    @NotNull Double x
) {
    public List_petsGeoPointParamDTO() {
        this(
            3.14
        );
    }
}
