#include "drivers/gpio.h"

#include "far.h"

enum { INPUTS, PULSE, HELD };
enum { IRQ, OUT, OUTEN, RAISED, CHANGES };

static void outputs(void)
{
    gpio_set(GPIO, 0xFFFF8001u);
    EQUAL(FAR(OUT), 0x8001u);
    EQUAL(FAR(OUTEN), 0u); /* no pin is driven yet */
    gpio_set_direction(GPIO, 0xFFFF80F1u, true);
    EQUAL(FAR(OUTEN), 0x80F1u);
    EQUAL(gpio_directions(GPIO), 0x80F1u);
    IDLE(4u);
    EQUAL(gpio_read(GPIO), 0x8001u);
    gpio_set(GPIO, 0x0030u);
    gpio_clear(GPIO, 0x8000u);
    EQUAL(FAR(OUT), 0x0031u);
    gpio_write(GPIO, 0x00F0u, 0xFFFFFF5Fu);
    EQUAL(FAR(OUT), 0x0051u);
    {
        const uint32_t changes = FAR(CHANGES);
        gpio_write(GPIO, 0x00F0u, 0x00A0u);
        EQUAL(FAR(CHANGES), changes + 1u); /* all at the same time */
        EQUAL(FAR(OUT), 0x00A1u);
        gpio_write(GPIO, 0xFFFF00F0u, 0xFFFFFF5Fu);
        EQUAL(FAR(CHANGES), changes + 2u);
        EQUAL(FAR(OUT), 0x0051u);
    }
    gpio_toggle(GPIO, 0xFFFF00F1u);
    EQUAL(FAR(OUT), 0x00A0u);
    EQUAL(gpio_outputs(GPIO), 0x00A0u);
    gpio_set_direction(GPIO, 0x0011u, false);
    EQUAL(FAR(OUTEN), 0x80E0u);
    FAR(INPUTS) = 0x7F1Fu;
    EQUAL(gpio_read(GPIO), 0x7FBFu);
    gpio_set_direction(GPIO, 0xFFFFu, false);
    FAR(INPUTS) = 0u;
    EQUAL(gpio_read(GPIO), 0u);
}

static void interrupts(void)
{
    uint32_t raised;
    EQUAL(FAR(IRQ), 0u);
    gpio_enable_interrupts(GPIO, 0x0001u, GPIO_HIGH);
    gpio_enable_interrupts(GPIO, 0x0002u, GPIO_RISING);
    gpio_enable_interrupts(GPIO, 0x8000u, GPIO_FALLING);
    EQUAL(gpio_pending(GPIO), 0u);
    EQUAL(FAR(IRQ), 0u);
    FAR(INPUTS) = 0x0001u;
    EQUAL(gpio_pending(GPIO), 0x0001u);
    EQUAL(FAR(IRQ), 1u);
    gpio_acknowledge(GPIO, 0xFFFFu); /* a level stays */
    EQUAL(FAR(IRQ), 1u);
    FAR(INPUTS) = 0x0000u;
    EQUAL(FAR(IRQ), 0u);
    FAR(INPUTS) = 0x8002u;
    EQUAL(gpio_pending(GPIO), 0x0002u);
    FAR(INPUTS) = 0x0000u;
    EQUAL(gpio_pending(GPIO), 0x8002u); /* edges stay */
    gpio_acknowledge(GPIO, 0x0002u);
    EQUAL(gpio_pending(GPIO), 0x8000u);
    EQUAL(FAR(IRQ), 1u);
    gpio_disable_interrupts(GPIO, 0x8000u);
    EQUAL(gpio_pending(GPIO), 0u);
    EQUAL(FAR(IRQ), 0u);
    gpio_enable_interrupts(GPIO, 0x8000u, GPIO_FALLING); /* forgets the earlier edge */
    EQUAL(FAR(IRQ), 0u);
    gpio_enable_interrupts(GPIO, 0x0100u, GPIO_LOW);
    EQUAL(gpio_pending(GPIO), 0x0100u);
    FAR(INPUTS) = 0x0100u;
    EQUAL(gpio_pending(GPIO), 0u);
    gpio_enable_interrupts(GPIO, 0x0100u, GPIO_RISING); /* from a level to an edge */
    EQUAL(gpio_pending(GPIO), 0u);
    /* Nothing is raised on the way from one condition to another. */
    FAR(INPUTS) = 0x0110u;
    gpio_enable_interrupts(GPIO, 0x0010u, GPIO_RISING);
    gpio_acknowledge(GPIO, 0xFFFFu);
    raised = FAR(RAISED);
    gpio_enable_interrupts(GPIO, 0x0010u, GPIO_LOW);
    EQUAL(FAR(RAISED), raised);
    gpio_disable_interrupts(GPIO, 0xFFFFFFFFu);
    EQUAL(GPIO->INTEN, 0u);
}

static void edges(void)
{
    FAR(INPUTS) = 0u;
    gpio_enable_interrupts(GPIO, 0x0040u, GPIO_CHANGING);
    EQUAL(FAR(IRQ), 0u);
    FAR(INPUTS) = 0x0040u;
    EQUAL(gpio_pending(GPIO), 0x0040u);
    gpio_acknowledge(GPIO, 0x0040u);
    EQUAL(FAR(IRQ), 0u);
    FAR(INPUTS) = 0u;
    EQUAL(gpio_pending(GPIO), 0x0040u);
    gpio_enable_interrupts(GPIO, 0x0040u, GPIO_RISING); /* one of them alone again */
    EQUAL(FAR(IRQ), 0u);
    FAR(INPUTS) = 0x0040u;
    EQUAL(gpio_pending(GPIO), 0x0040u);
    gpio_acknowledge(GPIO, 0x0040u);
    FAR(INPUTS) = 0u;
    EQUAL(gpio_pending(GPIO), 0u);
    gpio_disable_interrupts(GPIO, 0xFFFFu);
}

static void filters(void)
{
    EQUAL(gpio_set_filter_interval(GPIO, 0u), false);
    EQUAL(gpio_set_filter_interval(GPIO, 0x100001u), false);
    EQUAL(GPIO->FILTERLEN, GPIO_FILTERLEN_RESET);
    EQUAL(gpio_set_filter_interval(GPIO, 0x100000u), true);
    EQUAL(GPIO->FILTERLEN, 0xFFFFFu);
    EQUAL(gpio_set_filter_interval(GPIO, 10u), true);
    gpio_set_filters(GPIO, 0xFFFF0300u, true);
    gpio_set_filters(GPIO, 0x0200u, false);
    EQUAL(GPIO->FILTER, 0x0100u);
    IDLE(40u);
    gpio_enable_interrupts(GPIO, 0x0300u, GPIO_RISING);
    FAR(PULSE) = 20u; /* at all pins */
    IDLE(40u);
    EQUAL(gpio_pending(GPIO), 0x0200u);
    gpio_acknowledge(GPIO, 0x0300u);
    FAR(PULSE) = 30u;
    IDLE(40u);
    EQUAL(gpio_pending(GPIO), 0x0300u);
    gpio_disable_interrupts(GPIO, 0x0300u);
    FAR(INPUTS) = 0xFFFFu;
    EQUAL(gpio_read(GPIO), 0xFEFFu);
    EQUAL(gpio_read_unfiltered(GPIO), 0xFFFFu);
    IDLE(40u);
    EQUAL(gpio_read(GPIO), 0xFFFFu);
    gpio_set_filters(GPIO, 0xFFFFu, false);
    FAR(INPUTS) = 0u;
}

static void disputes(void)
{
    gpio_write(GPIO, 0xFFFFu, 0x00FFu);
    gpio_set_direction(GPIO, 0x0FFFu, true);
    IDLE(4u);
    EQUAL(gpio_disputed(GPIO), 0u);
    FAR(HELD) = 0x8180u; /* high from outside, whatever drives */
    EQUAL(gpio_read_unfiltered(GPIO), 0x81FFu);
    EQUAL(gpio_read(GPIO), 0x81FFu);
    EQUAL(gpio_disputed(GPIO), 0x0100u);
    FAR(HELD) = 0u;
    EQUAL(gpio_disputed(GPIO), 0u);
    gpio_set_direction(GPIO, 0xFFFFu, false);
}

void test(void)
{
    outputs();
    interrupts();
    edges();
    filters();
    disputes();
}
