package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;
import java.util.List;

public record Owner (
    @NotNull OwnerAddress address,
    @NotNull Pet best,
    Object favourite,
    @NotNull List<Pet> pets
) {
    public Owner() {
        this(
            new OwnerAddress(),
            null,
            new Object(),
            List.of()
        );
    }
}
