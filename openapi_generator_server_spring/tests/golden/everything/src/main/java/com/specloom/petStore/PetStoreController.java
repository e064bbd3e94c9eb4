package com.specloom.petStore;

import jakarta.validation.constraints.NotNull;
import org.springframework.web.bind.annotation.GetMapping;
import org.springframework.web.bind.annotation.HeadMapping;
import org.springframework.web.bind.annotation.OptionsMapping;
import org.springframework.web.bind.annotation.PatchMapping;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.PostMapping;
import org.springframework.web.bind.annotation.PutMapping;
import org.springframework.web.bind.annotation.RestController;
import org.springframework.web.bind.annotation.TraceMapping;

@RestController
class PetStoreController {
    private final PetStoreService service;

    PetStoreController(PetStoreService service) {
        this.service = service;
    }

    @GetMapping("/")
    void handleRoot() {
        this.service.root();
    }

    @GetMapping("/owners/{owner}/pets/{id}.{format}")
    void handlePetOfOwner(@PathVariable @NotNull String owner, @PathVariable @NotNull String id, @PathVariable @NotNull String format) {
        this.service.petOfOwner(owner, id, format);
    }

    @HeadMapping("/owners/{owner}/pets/{id}.{format}")
    void handlePetOfOwnerHead(@PathVariable @NotNull String owner, @PathVariable @NotNull String id, @PathVariable @NotNull String format) {
        this.service.petOfOwnerHead(owner, id, format);
    }

    @GetMapping("/pets")
    void handleListPets() {
        this.service.listPets();
    }

    @PutMapping("/pets")
    void handleReplacePets() {
        this.service.replacePets();
    }

    @PostMapping("/pets")
    void handleAddPet() {
        this.service.addPet();
    }

    @OptionsMapping("/pets")
    void handlePetOptions() {
        this.service.petOptions();
    }

    @HeadMapping("/pets")
    void handlePetHead() {
        this.service.petHead();
    }

    @PatchMapping("/pets")
    void handleMendPets() {
        this.service.mendPets();
    }

    @TraceMapping("/pets")
    void handleTracePets() {
        this.service.tracePets();
    }

    @GetMapping("/pets/latest")
    void handleLatestPet() {
        this.service.latestPet();
    }

    @GetMapping("/pets/{id}")
    void handleGetPet(@PathVariable @NotNull String id) {
        this.service.getPet(id);
    }
}
