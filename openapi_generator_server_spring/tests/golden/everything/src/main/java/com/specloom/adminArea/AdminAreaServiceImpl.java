package com.specloom.adminArea;

import org.springframework.stereotype.Service;

@Service
public class AdminAreaServiceImpl implements AdminAreaService {
    @Override
    public void hidden() {
    }

    @Override
    public void dropPets() {
    }

    @Override
    public void shared() {
    }
}
