package com.specloom.untagged;

import org.springframework.stereotype.Service;

@Service
public class UntaggedServiceImpl implements UntaggedService {
    @Override
    public void untagged() {
    }
}
