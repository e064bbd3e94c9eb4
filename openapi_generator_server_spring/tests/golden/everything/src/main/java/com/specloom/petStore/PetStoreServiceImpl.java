package com.specloom.petStore;

import jakarta.validation.constraints.NotNull;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.PathVariable;

@Service
public class PetStoreServiceImpl implements PetStoreService {
    @Override
    public void root() {
    }

    @Override
    public void petOfOwner(@PathVariable @NotNull String owner, @PathVariable @NotNull String id, @PathVariable @NotNull String format) {
    }

    @Override
    public void petOfOwnerHead(@PathVariable @NotNull String owner, @PathVariable @NotNull String id, @PathVariable @NotNull String format) {
    }

    @Override
    public void listPets() {
    }

    @Override
    public void replacePets() {
    }

    @Override
    public void addPet() {
    }

    @Override
    public void petOptions() {
    }

    @Override
    public void petHead() {
    }

    @Override
    public void mendPets() {
    }

    @Override
    public void tracePets() {
    }

    @Override
    public void latestPet() {
    }

    @Override
    public void getPet(@PathVariable @NotNull String id) {
    }
}
