package com.specloom.petsId;

import jakarta.validation.constraints.NotNull;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.PathVariable;

@Service
public class PetsIdServiceImpl implements PetsIdService {
    @Override
    public void dropPet(@PathVariable @NotNull String id) {
    }
}
