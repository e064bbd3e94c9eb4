package com.specloom.shared.dto;

import jakarta.validation.constraints.NotNull;
import java.util.List;

public record List2 (
    @NotNull List<Object2> entries
) {
    public List2() {
        this(
            List.of()
        );
    }
}
