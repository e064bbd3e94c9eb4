package com.specloom.domain.shared.dto;

import com.fasterxml.jackson.annotation.JsonProperty;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Size;
import java.util.List;

public record NewOrder (
    @NotNull String currency,
    @NotNull List<Object> delivery,
    @JsonProperty(required=true) @NotNull @Size(min = 1, max = 100) List<NewOrderLinesItem> lines,
    @JsonProperty(value="notify") @NotNull String notify1
) {
    public NewOrder() {
        this(
            "Hello",
            List.of(),
            List.of(),
            "Hello"
        );
    }
}
