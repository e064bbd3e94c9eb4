package com.specloom.domain.orders;

import jakarta.validation.constraints.NotNull;

public record RequestDTO (
    @NotNull String order,
    @NotNull String trace
) {
    public RequestDTO() {
        this(
            "Hello",
            "Hello"
        );
    }
}
