package com.specloom.domain.orders;

import com.specloom.domain.shared.dto.NewOrder;
import com.specloom.domain.shared.dto.Order;
import jakarta.validation.constraints.NotNull;
import org.springframework.stereotype.Service;
import org.springframework.web.bind.annotation.PathVariable;
import org.springframework.web.bind.annotation.RequestBody;

@Service
public interface OrdersService {
    Order createOrder(@RequestBody @NotNull NewOrder body);

    Order getOrder(@PathVariable @NotNull String orderId);
}
