package com.specloom.shared.dto;


public record TypesMap () {
}
