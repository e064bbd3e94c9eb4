package com.specloom.petStore;

import com.specloom.shared.dto.Pet;
import jakarta.validation.constraints.NotNull;
import org.springframework.web.bind.annotation.PostMapping;
import org.springframework.web.bind.annotation.RequestBody;
import org.springframework.web.bind.annotation.RequestParam;
import org.springframework.web.bind.annotation.RestController;

@RestController
class PetStoreController {
    private final PetStoreService service;

    PetStoreController(PetStoreService service) {
        this.service = service;
    }

    @PostMapping("/pets")
    @NotNull
    Pet handleAddPet(@RequestBody @NotNull AddPetNewPetRequestDTO body, @RequestParam(name="body", required=false) @NotNull Boolean body2, @RequestParam(required=false) @NotNull AddPetParamDTO filter) {
        return this.service.addPet(body, body2, filter);
    }
}
