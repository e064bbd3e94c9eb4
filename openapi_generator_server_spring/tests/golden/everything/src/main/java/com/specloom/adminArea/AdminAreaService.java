package com.specloom.adminArea;

import org.springframework.stereotype.Service;

@Service
public interface AdminAreaService {
    void hidden();

    void dropPets();

    void shared();
}
