package com.specloom.shared.dto;

import com.fasterxml.jackson.annotation.JsonProperty;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Size;

public record Animal (
    @NotNull Integer age,
    @JsonProperty(required=true) @NotNull String kind,
    @NotNull @Size(min = 1, max = 40) String name
) {
    public Animal() {
        this(
            42,
            "Hello",
            "Hello"
        );
    }
}
