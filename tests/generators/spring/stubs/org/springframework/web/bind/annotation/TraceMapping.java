package org.springframework.web.bind.annotation;

public @interface TraceMapping {
    String[] value() default {};
}
