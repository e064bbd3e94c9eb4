package org.springframework.web.bind.annotation;

public @interface HeadMapping {
    String[] value() default {};
}
