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
public class SharedServiceImpl implements SharedService {
    @Override
    public List<Pet> get() {
        return List.of();
    }

    @Override
    public void putReport(@RequestParam(required=false) @NotNull PutReportListParamDTO2 range) {
    }

    @Override
    public List2 report(@PathVariable @NotNull Integer year, @RequestParam(required=false) @NotNull PutReportListParamDTO range) {
        return new List2();
    }

    @Override
    public Types types() {
        return new Types();
    }

    @Override
    public Boolean flag() {
        return true;
    }

    @Override
    public String text() {
        return "some_string";
    }
}
