/*
 * GPIO: sixteen pins. Sets of pins are masks, pin 0 in bit 0; bits 31 to 16 are ignored.
 *
 * gpio_set(), gpio_clear(), gpio_write() and gpio_toggle() can be called while an interrupt handler
 * changes other pins; what changes directions, conditions or filters has to be kept from coming in
 * between.
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
    GPIO_RISING,  /* once it has risen, until gpio_acknowledge() */
    GPIO_CHANGING /* once it has risen or fallen, until gpio_acknowledge() */
} gpio_condition;

/* Makes pins outputs, which drive what was set, or inputs. */
void gpio_set_direction(GPIO_Type *gpio, uint32_t pins, bool output);

/* The pins that are outputs. */
uint32_t gpio_directions(const GPIO_Type *gpio);

/* Sets outputs; also of pins that become outputs later. */
void gpio_set(GPIO_Type *gpio, uint32_t pins);

/* Clears outputs; also of pins that become outputs later. */
void gpio_clear(GPIO_Type *gpio, uint32_t pins);

/* Gives outputs the values of their bits in values, all in the same clock cycle. */
void gpio_write(GPIO_Type *gpio, uint32_t pins, uint32_t values);

/* Inverts outputs. */
void gpio_toggle(GPIO_Type *gpio, uint32_t pins);

/* The levels of all pins, outputs included, two clock cycles of the bus old and later where a
 * filter is on. */
uint32_t gpio_read(const GPIO_Type *gpio);

/* The same without filters: what each pin really is, also while it is driven. */
uint32_t gpio_read_unfiltered(const GPIO_Type *gpio);

/* The outputs whose pins are not what they were given, some cycles ago: something else drives
 * them. */
uint32_t gpio_disputed(const GPIO_Type *gpio);

/* The number of clock cycles, 1 to 1048576, between the samples of all filters: pulses of up to
 * twice as many are dropped, those of three times as many are seen. False for other numbers, and
 * where the block has no filters; nothing has changed then. */
bool gpio_set_filter_interval(GPIO_Type *gpio, uint32_t cycles);

/* Switches the filters of pins on or off, for gpio_read() and interrupts; a level that the filter
 * has not taken yet may count as an edge, so before gpio_enable_interrupts(). */
void gpio_set_filters(GPIO_Type *gpio, uint32_t pins, bool on);

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
