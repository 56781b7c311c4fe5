/* What the programs share that use a driver on the RTL: checks, and the far side of the block. */
#ifndef FAR_H
#define FAR_H

#include <stdint.h>

/* A word of the far side; rtl/NAME.v says what each is. */
#define FAR(index) (((volatile uint32_t *)0x70000000u)[index])

#define FAR_CONTROL ((volatile uint32_t *)0x7F000000u)

/* Clock cycles pass; at least 1. */
#define IDLE(cycles) (FAR_CONTROL[0] = (cycles))

#define EQUAL(actual, expected)                                                                    \
    (FAR_CONTROL[1] = (uint32_t)(actual), FAR_CONTROL[2] = (uint32_t)(expected),                   \
     FAR_CONTROL[3] = (uint32_t)__LINE__)

void test(void);

#endif
