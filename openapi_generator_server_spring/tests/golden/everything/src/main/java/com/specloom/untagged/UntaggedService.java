package com.specloom.untagged;

import org.springframework.stereotype.Service;

@Service
public interface UntaggedService {
    void untagged();
}
