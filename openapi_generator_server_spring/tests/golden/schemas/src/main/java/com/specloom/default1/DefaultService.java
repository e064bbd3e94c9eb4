package com.specloom.default1;

import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Pattern;
import java.util.List;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.PathVariable;

@Service
public interface DefaultService {
    Object getPetsIdFromDate(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate);

    void wait1(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate);

    List<String> petOptions(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate);

    void petHead(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate);

    Double mendPet(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate);

    Integer tracePet(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate);
}
