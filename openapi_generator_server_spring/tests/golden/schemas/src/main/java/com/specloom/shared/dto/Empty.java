package com.specloom.shared.dto;


public record Empty () {
}
