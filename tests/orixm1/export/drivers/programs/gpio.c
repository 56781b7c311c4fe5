#include "drivers/gpio.h"

#include "far.h"

enum { INPUTS };
enum { IRQ, OUT, OUTEN, RAISED };

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
    gpio_toggle(GPIO, 0x00F1u);
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

void test(void)
{
    outputs();
    interrupts();
}
