package org.springframework.web.bind.annotation;

public @interface OptionsMapping {
    String[] value() default {};
}
