package com.specloom.untagged;

import org.springframework.web.bind.annotation.GetMapping;
import org.springframework.web.bind.annotation.RestController;

@RestController
class UntaggedController {
    private final UntaggedService service;

    UntaggedController(UntaggedService service) {
        this.service = service;
    }

    @GetMapping("/untagged")
    void handleUntagged() {
        this.service.untagged();
    }
}
