package com.specloom.shared.dto;

import com.fasterxml.jackson.annotation.JsonProperty;
import jakarta.validation.constraints.NotNull;
import java.util.List;

public record Error (
    @NotNull List<Error> causes,
    @JsonProperty(required=true) @NotNull Integer code
) {
    public Error() {
        this(
            List.of(),
            42
        );
    }
}
