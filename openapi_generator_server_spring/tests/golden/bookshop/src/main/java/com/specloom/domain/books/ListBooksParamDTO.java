package com.specloom.domain.books;


public record ListBooksParamDTO () {
}
