package com.specloom.domain.shared.dto;

import com.fasterxml.jackson.annotation.JsonProperty;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Size;

public record Item (
    @JsonProperty(required=true) @NotNull String kind,
    @JsonProperty(required=true) @NotNull Integer price,
    @JsonProperty(required=true) @NotNull @Size(min = 1, max = 200) String title,
    @NotNull String xml
) {
    public Item() {
        this(
            "Hello",
            42,
            "Hello",
            "Hello"
        );
    }
}
