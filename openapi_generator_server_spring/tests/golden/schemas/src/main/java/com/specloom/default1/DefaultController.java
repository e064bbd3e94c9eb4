package com.specloom.default1;

import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Pattern;
import java.util.List;
import org.springframework.web.bind.annotation.DeleteMapping;
import org.springframework.web.bind.annotation.GetMapping;
import org.springframework.web.bind.annotation.HeadMapping;
import org.springframework.web.bind.annotation.OptionsMapping;
import org.springframework.web.bind.annotation.PatchMapping;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.RestController;
import org.springframework.web.bind.annotation.TraceMapping;

@RestController
class DefaultController {
    private final DefaultService service;

    DefaultController(DefaultService service) {
        this.service = service;
    }

    @GetMapping("/pets/{id}/{from-date}")
    Object handleGetPetsIdFromDate(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        return this.service.getPetsIdFromDate(id, fromDate);
    }

    @DeleteMapping("/pets/{id}/{from-date}")
    void handleWait(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        this.service.wait1(id, fromDate);
    }

    @OptionsMapping("/pets/{id}/{from-date}")
    @NotNull
    List<String> handlePetOptions(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        return this.service.petOptions(id, fromDate);
    }

    @HeadMapping("/pets/{id}/{from-date}")
    void handlePetHead(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        this.service.petHead(id, fromDate);
    }

    @PatchMapping("/pets/{id}/{from-date}")
    @NotNull
    Double handleMendPet(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        return this.service.mendPet(id, fromDate);
    }

    @TraceMapping("/pets/{id}/{from-date}")
    @NotNull
    Integer handleTracePet(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        return this.service.tracePet(id, fromDate);
    }
}
