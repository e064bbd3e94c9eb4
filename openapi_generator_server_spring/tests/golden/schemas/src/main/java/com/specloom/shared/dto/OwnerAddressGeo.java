package com.specloom.shared.dto;

import com.fasterxml.jackson.annotation.JsonProperty;
import jakarta.validation.constraints.NotNull;

public record OwnerAddressGeo (
    @NotNull Double lat,
    @JsonProperty(value="long") @NotNull Double long1
) {
    public OwnerAddressGeo() {
        this(
            3.14,
            3.14
        );
    }
}
