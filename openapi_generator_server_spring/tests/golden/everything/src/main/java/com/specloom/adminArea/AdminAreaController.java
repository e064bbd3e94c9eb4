package com.specloom.adminArea;

import org.springframework.web.bind.annotation.DeleteMapping;
import org.springframework.web.bind.annotation.GetMapping;
import org.springframework.web.bind.annotation.RestController;

@RestController
class AdminAreaController {
    private final AdminAreaService service;

    AdminAreaController(AdminAreaService service) {
        this.service = service;
    }

    @GetMapping("/hidden")
    void handleHidden() {
        this.service.hidden();
    }

    @DeleteMapping("/pets")
    void handleDropPets() {
        this.service.dropPets();
    }

    @GetMapping("/shared")
    void handleShared() {
        this.service.shared();
    }
}
