/*
 * GPIO: sixteen pins. Sets of pins are masks, pin 0 in bit 0; bits 31 to 16 are ignored.
 *
 * gpio_set(), gpio_clear() and gpio_write() can be called while an interrupt handler changes other
 * pins; what changes directions or conditions has to be kept from coming in between.
 */
#ifndef TARVO_ORIX_M1_DRIVER_GPIO_H
#define TARVO_ORIX_M1_DRIVER_GPIO_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* When a pin asks for an interrupt. */
typedef enum {
    GPIO_LOW = 0, /* while it is low */
    GPIO_HIGH,    /* while it is high */
    GPIO_FALLING, /* once it has fallen, until gpio_acknowledge() */
    GPIO_RISING   /* once it has risen, until gpio_acknowledge() */
} gpio_condition;

/* Makes pins outputs, which drive what was set, or inputs. */
void gpio_set_direction(GPIO_Type *gpio, uint32_t pins, bool output);

/* The pins that are outputs. */
uint32_t gpio_directions(const GPIO_Type *gpio);

/* Sets outputs; also of pins that become outputs later. */
void gpio_set(GPIO_Type *gpio, uint32_t pins);

/* Clears outputs; also of pins that become outputs later. */
void gpio_clear(GPIO_Type *gpio, uint32_t pins);

/* Gives outputs the values of their bits in values: ones first, zeros some cycles later. */
void gpio_write(GPIO_Type *gpio, uint32_t pins, uint32_t values);

/* Inverts outputs. */
void gpio_toggle(GPIO_Type *gpio, uint32_t pins);

/* The levels of all pins, outputs included, two clock cycles of the bus old. */
uint32_t gpio_read(const GPIO_Type *gpio);

/* The values that outputs were given. */
uint32_t gpio_outputs(const GPIO_Type *gpio);

/* Sets the condition of pins, forgets earlier edges and switches their interrupts on. */
void gpio_enable_interrupts(GPIO_Type *gpio, uint32_t pins, gpio_condition condition);

/* Switches the interrupts of pins off; conditions stay. */
void gpio_disable_interrupts(GPIO_Type *gpio, uint32_t pins);

/* The pins whose interrupt is on and whose condition is met. */
uint32_t gpio_pending(const GPIO_Type *gpio);

/* Forgets the edges of pins; a level asks until it is over. */
void gpio_acknowledge(GPIO_Type *gpio, uint32_t pins);

#ifdef __cplusplus
}
#endif

#endif
