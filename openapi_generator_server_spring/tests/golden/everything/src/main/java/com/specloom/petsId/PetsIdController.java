package com.specloom.petsId;

import jakarta.validation.constraints.NotNull;
import org.springframework.web.bind.annotation.DeleteMapping;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.RestController;

@RestController
class PetsIdController {
    private final PetsIdService service;

    PetsIdController(PetsIdService service) {
        this.service = service;
    }

    @DeleteMapping("/pets/{id}")
    void handleDropPet(@PathVariable @NotNull String id) {
        this.service.dropPet(id);
    }
}
