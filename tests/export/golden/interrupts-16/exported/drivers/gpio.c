#include "gpio.h"

void gpio_set_direction(GPIO_Type *gpio, uint32_t pins, bool output)
{
    if (output)
        gpio->OUTEN = gpio->OUTEN | (pins & GPIO_OUTEN_ENABLE_Msk);
    else
        gpio->OUTEN = gpio->OUTEN & ~pins;
}

uint32_t gpio_directions(const GPIO_Type *gpio)
{
    return gpio->OUTEN & GPIO_OUTEN_ENABLE_Msk;
}

void gpio_set(GPIO_Type *gpio, uint32_t pins)
{
    gpio->OUTSET = pins & GPIO_OUTSET_SET_Msk;
}

void gpio_clear(GPIO_Type *gpio, uint32_t pins)
{
    gpio->OUTCLR = pins & GPIO_OUTCLR_CLEAR_Msk;
}

void gpio_write(GPIO_Type *gpio, uint32_t pins, uint32_t values)
{
    gpio->OUTMASK = ((pins << GPIO_OUTMASK_MASK_Pos) & GPIO_OUTMASK_MASK_Msk) |
                    (values & GPIO_OUTMASK_VALUE_Msk);
}

void gpio_toggle(GPIO_Type *gpio, uint32_t pins)
{
    gpio->OUTTGL = pins & GPIO_OUTTGL_TOGGLE_Msk;
}

uint32_t gpio_read(const GPIO_Type *gpio)
{
    return gpio->DATA & GPIO_DATA_PINS_Msk;
}

uint32_t gpio_read_unfiltered(const GPIO_Type *gpio)
{
    return gpio->PIN & GPIO_PIN_PINS_Msk;
}

uint32_t gpio_disputed(const GPIO_Type *gpio)
{
    return (gpio->PIN ^ gpio->OUT) & gpio->OUTEN & GPIO_PIN_PINS_Msk;
}

bool gpio_set_filter_interval(GPIO_Type *gpio, uint32_t cycles)
{
    if ((gpio->ID & GPIO_ID_FILTERS_Msk) == 0u || cycles == 0u ||
        cycles - 1u > (GPIO_FILTERLEN_CYCLES_Msk >> GPIO_FILTERLEN_CYCLES_Pos))
        return false;
    gpio->FILTERLEN = (cycles - 1u) << GPIO_FILTERLEN_CYCLES_Pos;
    return true;
}

void gpio_set_filters(GPIO_Type *gpio, uint32_t pins, bool on)
{
    if (on)
        gpio->FILTER = gpio->FILTER | (pins & GPIO_FILTER_ENABLE_Msk);
    else
        gpio->FILTER = gpio->FILTER & ~pins;
}

uint32_t gpio_outputs(const GPIO_Type *gpio)
{
    return gpio->OUT & GPIO_OUT_VALUE_Msk;
}

void gpio_enable_interrupts(GPIO_Type *gpio, uint32_t pins, gpio_condition condition)
{
    const uint32_t used = pins & GPIO_INTEN_ENABLE_Msk;
    gpio_disable_interrupts(gpio, used); /* nothing is raised halfway */
    if (condition == GPIO_CHANGING)
        gpio->INTBOTH = gpio->INTBOTH | used;
    else
        gpio->INTBOTH = gpio->INTBOTH & ~used;
    if (condition == GPIO_FALLING || condition == GPIO_RISING || condition == GPIO_CHANGING)
        gpio->INTEDGE = gpio->INTEDGE | used;
    else
        gpio->INTEDGE = gpio->INTEDGE & ~used;
    if (condition == GPIO_HIGH || condition == GPIO_RISING)
        gpio->INTPOL = gpio->INTPOL | used;
    else
        gpio->INTPOL = gpio->INTPOL & ~used;
    gpio_acknowledge(gpio, used);
    gpio->INTEN = gpio->INTEN | used;
}

void gpio_disable_interrupts(GPIO_Type *gpio, uint32_t pins)
{
    gpio->INTEN = gpio->INTEN & ~pins;
}

uint32_t gpio_pending(const GPIO_Type *gpio)
{
    return gpio->INTPEND & gpio->INTEN & GPIO_INTPEND_PENDING_Msk;
}

void gpio_acknowledge(GPIO_Type *gpio, uint32_t pins)
{
    gpio->INTPEND = pins & GPIO_INTPEND_PENDING_Msk;
}
