package com.specloom.petStore;

import com.fasterxml.jackson.annotation.JsonProperty;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Size;

public record AddPetNewPetRequestDTO (
    @NotNull Integer age,
    @JsonProperty(required=true) @NotNull String kind,
    @JsonProperty(required=true) @NotNull @Size(min = 1, max = 40) String name,
    @JsonProperty(required=true) @NotNull AddPetNewPetRequestDTOOwner owner
) {
    public AddPetNewPetRequestDTO() {
        this(
            42,
            "Hello",
            "Hello",
            new AddPetNewPetRequestDTOOwner()
        );
    }
}
