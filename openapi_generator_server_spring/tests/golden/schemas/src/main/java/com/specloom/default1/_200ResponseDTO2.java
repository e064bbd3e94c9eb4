package com.specloom.default1;

import jakarta.validation.constraints.NotNull;

public record _200ResponseDTO2 (
    @NotNull String until
) {
    public _200ResponseDTO2() {
        this(
            "Hello"
        );
    }
}
