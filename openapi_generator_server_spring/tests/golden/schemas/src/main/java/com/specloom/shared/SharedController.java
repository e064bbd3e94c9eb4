package com.specloom.shared;

import com.specloom.petStore2.PutReportListParamDTO;
import com.specloom.shared.dto.List2;
import com.specloom.shared.dto.Pet;
import com.specloom.shared.dto.Types;
import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Size;
import java.util.List;
import org.springframework.web.bind.annotation.GetMapping;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.PostMapping;
import org.springframework.web.bind.annotation.PutMapping;
import org.springframework.web.bind.annotation.RequestParam;
import org.springframework.web.bind.annotation.RestController;

@RestController
class SharedController {
    private final SharedService service;

    SharedController(SharedService service) {
        this.service = service;
    }

    @GetMapping("/")
    @NotNull @Size()
    List<Pet> handleGet() {
        return this.service.get();
    }

    @GetMapping("/reports")
    void handlePutReport(@RequestParam(required=false) @NotNull PutReportListParamDTO2 range) {
        this.service.putReport(range);
    }

    @GetMapping("/reports/{year}")
    @NotNull
    List2 handleReport(@PathVariable @NotNull Integer year, @RequestParam(required=false) @NotNull PutReportListParamDTO range) {
        return this.service.report(year, range);
    }

    @GetMapping("/types")
    Types handleTypes() {
        return this.service.types();
    }

    @PutMapping("/types")
    @NotNull
    Boolean handleFlag() {
        return this.service.flag();
    }

    @PostMapping("/types")
    @NotNull
    String handleText() {
        return this.service.text();
    }
}
