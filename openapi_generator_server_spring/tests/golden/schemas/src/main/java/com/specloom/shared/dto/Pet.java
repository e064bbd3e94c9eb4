package com.specloom.shared.dto;

import com.fasterxml.jackson.annotation.JsonProperty;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Size;

public record Pet (
    Object age,
    @JsonProperty(required=true) @NotNull String kind,
    @JsonProperty(required=true) @NotNull @Size(min = 1, max = 40) String name,
    @NotNull Pet mother,
    @NotNull Owner owner
) {
    public Pet() {
        this(
            new Object(),
            "Hello",
            "Hello",
            null,
            null
        );
    }
}
