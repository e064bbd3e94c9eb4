package com.specloom.shared;


public record PutReportListParamDTO2 () {
}
