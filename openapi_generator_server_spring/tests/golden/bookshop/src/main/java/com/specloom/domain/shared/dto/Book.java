package com.specloom.domain.shared.dto;

import com.fasterxml.jackson.annotation.JsonProperty;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Pattern;
import jakarta.validation.constraints.Size;
import java.util.List;

public record Book (
    @JsonProperty(required=true) @NotNull String kind,
    @JsonProperty(required=true) @NotNull Integer price,
    @JsonProperty(required=true) @NotNull @Size(min = 1, max = 200) String title,
    @NotNull String xml,
    @NotNull List<String> genres,
    @JsonProperty(required=true) @NotNull @Pattern(regexp = "^97[89][0-9]{10}$") String isbn,
    @NotNull Double weight
) {
    public Book() {
        this(
            "Hello",
            42,
            "Hello",
            "Hello",
            List.of(),
            "Hello",
            3.14
        );
    }
}
