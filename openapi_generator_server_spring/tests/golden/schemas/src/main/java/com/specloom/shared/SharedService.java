package com.specloom.shared;

import com.specloom.petStore2.PutReportListParamDTO;
import com.specloom.shared.dto.List2;
import com.specloom.shared.dto.Pet;
import com.specloom.shared.dto.Types;
import jakarta.validation.constraints.NotNull;
import java.util.List;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.RequestParam;

@Service
public interface SharedService {
    List<Pet> get();

    void putReport(@RequestParam(required=false) @NotNull PutReportListParamDTO2 range);

    List2 report(@PathVariable @NotNull Integer year, @RequestParam(required=false) @NotNull PutReportListParamDTO range);

    Types types();

    Boolean flag();

    String text();
}
