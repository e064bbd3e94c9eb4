package com.specloom.petStore2;

import jakarta.validation.constraints.NotNull;

public record PutReportListParamDTO (
    @NotNull Integer from
) {
    public PutReportListParamDTO() {
        this(
            42
        );
    }
}
