package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record TypesPointsItem (
    @NotNull Double x
) {
    public TypesPointsItem() {
        this(
            3.14
        );
    }
}
