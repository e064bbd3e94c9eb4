package com.specloom.petStore;

import com.specloom.shared.dto.Pet;
import jakarta.validation.constraints.NotNull;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.RequestBody;
import org.springframework.web.bind.annotation.RequestParam;

@Service
public class PetStoreServiceImpl implements PetStoreService {
    @Override
    public Pet addPet(@RequestBody @NotNull AddPetNewPetRequestDTO body, @RequestParam(name="body", required=false) @NotNull Boolean body2, @RequestParam(required=false) @NotNull AddPetParamDTO filter) {
        return new Pet();
    }
}
