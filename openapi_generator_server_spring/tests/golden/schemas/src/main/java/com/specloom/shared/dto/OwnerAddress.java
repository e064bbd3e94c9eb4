package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;

public record OwnerAddress (
    @NotNull OwnerAddressGeo geo,
    @NotNull String street
) {
    public OwnerAddress() {
        this(
            new OwnerAddressGeo(),
            "Hello"
        );
    }
}
