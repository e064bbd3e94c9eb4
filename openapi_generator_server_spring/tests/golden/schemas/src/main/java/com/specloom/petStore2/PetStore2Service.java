package com.specloom.petStore2;

import com.specloom.petStore.AddPetParamDTO;
import com.specloom.shared.dto.Pet;
import com.specloom.shared.dto.Sort;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Size;
import java.util.List;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.CookieValue;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.RequestBody;
import org.springframework.web.bind.annotation.RequestHeader;
import org.springframework.web.bind.annotation.RequestParam;

@Service
public interface PetStore2Service {
    List<Pet> list_pets(@RequestHeader(name="x-trace-id", required=false) @NotNull String xTraceId, @CookieValue @NotNull @Size(min = 8) String session, @RequestParam(required=false) @NotNull Integer limit, @RequestParam(required=false) @NotNull Boolean body, @RequestParam("class") String class1, @RequestParam(required=false) @NotNull @Size(min = 1, max = 10) List<Integer> ids, @RequestParam(required=false) @NotNull List_petsGeoPointParamDTO at, @RequestParam(required=false) @NotNull Sort sort, @RequestParam(required=false) @NotNull AddPetParamDTO filter);

    void replacePets(@RequestBody(required=false) @NotNull List<Pet> body, @RequestParam(required=false) @NotNull AddPetParamDTO filter);

    void putReport(@PathVariable @NotNull Integer year, @RequestParam(required=false) @NotNull PutReportListParamDTO range);
}
