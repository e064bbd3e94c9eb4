package com.specloom.default1;

import jakarta.validation.constraints.NotNull;
import jakarta.validation.constraints.Pattern;
import java.util.List;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.PathVariable;

@Service
public class DefaultServiceImpl implements DefaultService {
    @Override
    public Object getPetsIdFromDate(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        return new Object();
    }

    @Override
    public void wait1(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
    }

    @Override
    public List<String> petOptions(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        return List.of();
    }

    @Override
    public void petHead(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
    }

    @Override
    public Double mendPet(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        return 3.14;
    }

    @Override
    public Integer tracePet(@PathVariable @NotNull @Pattern(regexp = "^[\\w\"]+\\\\d$") String id, @PathVariable("from-date") @NotNull String fromDate) {
        return 42;
    }
}
