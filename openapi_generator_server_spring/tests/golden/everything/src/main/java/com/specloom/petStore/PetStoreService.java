package com.specloom.petStore;

import jakarta.validation.constraints.NotNull;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.PathVariable;

@Service
public interface PetStoreService {
    void root();

    void petOfOwner(@PathVariable @NotNull String owner, @PathVariable @NotNull String id, @PathVariable @NotNull String format);

    void petOfOwnerHead(@PathVariable @NotNull String owner, @PathVariable @NotNull String id, @PathVariable @NotNull String format);

    void listPets();

    void replacePets();

    void addPet();

    void petOptions();

    void petHead();

    void mendPets();

    void tracePets();

    void latestPet();

    void getPet(@PathVariable @NotNull String id);
}
