package com.specloom.web.orders;

import com.specloom.domain.orders.OrdersService;
import com.specloom.domain.shared.dto.NewOrder;
import com.specloom.domain.shared.dto.Order;
import jakarta.validation.constraints.NotNull;
import org.springframework.web.bind.annotation.GetMapping;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.PostMapping;
import org.springframework.web.bind.annotation.RequestBody;
import org.springframework.web.bind.annotation.RestController;

@RestController
class OrdersController {
    private final OrdersService service;

    OrdersController(OrdersService service) {
        this.service = service;
    }

    @PostMapping("/orders")
    @NotNull
    Order handleCreateOrder(@RequestBody @NotNull NewOrder body) {
        return this.service.createOrder(body);
    }

    @GetMapping("/orders/{orderId}")
    @NotNull
    Order handleGetOrder(@PathVariable @NotNull String orderId) {
        return this.service.getOrder(orderId);
    }
}
