package com.specloom.shared.dto;


public record PetStoreService2 () {
}
