/* Start-up of the subsystem Tarvo_ORIX_M1: vector table, and what runs before main(). C99, without a C library.
 * Each handler can be replaced by a function of the same name. Interrupts that nothing requests end in
 * Default_Handler, which stops there. */
#include <stdint.h>

#include "system_tarvo_orix_m1.h"

/* From the linker script; all are multiples of four. */
extern uint32_t __stack_top[];
extern uint32_t __data_start[];
extern uint32_t __data_end[];
extern const uint32_t __data_load[];
extern uint32_t __bss_start[];
extern uint32_t __bss_end[];

typedef void (*Function)(void);

extern const Function __preinit_array_start[];
extern const Function __preinit_array_end[];
extern const Function __init_array_start[];
extern const Function __init_array_end[];

/* A library whose variables of a thread are set up by this function needs it; others have none. */
extern void _set_tls(void *start) __attribute__((weak));
extern uint32_t __tls_base[] __attribute__((weak));

int main(void);

void Reset_Handler(void);
void Default_Handler(void);
void start_program(void);
void _init(void);
void _fini(void);

#define WEAK_HANDLER(name) void name(void) __attribute__((weak, alias("Default_Handler")))

WEAK_HANDLER(NMI_Handler); /* non-maskable interrupt */
WEAK_HANDLER(HardFault_Handler); /* every fault */
WEAK_HANDLER(SVC_Handler); /* instruction SVC */
WEAK_HANDLER(PendSV_Handler); /* request of the operating system */
WEAK_HANDLER(SysTick_Handler); /* system timer */
WEAK_HANDLER(CAN_IRQHandler); /* interrupt 9 */
WEAK_HANDLER(ETH_IRQHandler); /* interrupt 10 */

/* The processor reads the first word as its stack pointer. */
struct VectorTable {
    const uint32_t *stack_top;
    Function handlers[47];
};

extern const struct VectorTable vector_table;

const struct VectorTable vector_table __attribute__((used, section(".vectors"))) = {
    __stack_top,
    {
        Reset_Handler, /* exception 1 */
        NMI_Handler, /* exception 2 */
        HardFault_Handler, /* exception 3 */
        0, /* exception 4: none */
        0, /* exception 5: none */
        0, /* exception 6: none */
        0, /* exception 7: none */
        0, /* exception 8: none */
        0, /* exception 9: none */
        0, /* exception 10: none */
        SVC_Handler, /* exception 11 */
        0, /* exception 12: none */
        0, /* exception 13: none */
        PendSV_Handler, /* exception 14 */
        SysTick_Handler, /* exception 15 */
        Default_Handler, /* interrupt 0 */
        Default_Handler, /* interrupt 1 */
        Default_Handler, /* interrupt 2 */
        Default_Handler, /* interrupt 3 */
        Default_Handler, /* interrupt 4 */
        Default_Handler, /* interrupt 5 */
        Default_Handler, /* interrupt 6 */
        Default_Handler, /* interrupt 7 */
        Default_Handler, /* interrupt 8 */
        CAN_IRQHandler, /* interrupt 9 */
        ETH_IRQHandler, /* interrupt 10 */
        Default_Handler, /* interrupt 11 */
        Default_Handler, /* interrupt 12 */
        Default_Handler, /* interrupt 13 */
        Default_Handler, /* interrupt 14 */
        Default_Handler, /* interrupt 15 */
        Default_Handler, /* interrupt 16 */
        Default_Handler, /* interrupt 17 */
        Default_Handler, /* interrupt 18 */
        Default_Handler, /* interrupt 19 */
        Default_Handler, /* interrupt 20 */
        Default_Handler, /* interrupt 21 */
        Default_Handler, /* interrupt 22 */
        Default_Handler, /* interrupt 23 */
        Default_Handler, /* interrupt 24 */
        Default_Handler, /* interrupt 25 */
        Default_Handler, /* interrupt 26 */
        Default_Handler, /* interrupt 27 */
        Default_Handler, /* interrupt 28 */
        Default_Handler, /* interrupt 29 */
        Default_Handler, /* interrupt 30 */
        Default_Handler, /* interrupt 31 */
    },
};

void Default_Handler(void)
{
    for (;;) {
    }
}

/* volatile, so that the compiler makes no call to a C library of a loop. */
static void copy_words(volatile uint32_t *to, const volatile uint32_t *end,
                       const volatile uint32_t *from)
{
    if (to == from)
        return;
    while (to != end)
        *to++ = *from++;
}

static void zero_words(volatile uint32_t *to, const volatile uint32_t *end)
{
    while (to != end)
        *to++ = 0;
}

/* Parts of further memories, as the linker script lists them. */
struct CopiedPart {
    const uint32_t *load;
    uint32_t *start;
    uint32_t *end;
};

struct ZeroedPart {
    uint32_t *start;
    uint32_t *end;
};

extern const struct CopiedPart __copy_table_start[];
extern const struct CopiedPart __copy_table_end[];
extern const struct ZeroedPart __zero_table_start[];
extern const struct ZeroedPart __zero_table_end[];

static void initialize_further_memories(void)
{
    const struct CopiedPart *copied;
    const struct ZeroedPart *zeroed;

    for (copied = __copy_table_start; copied != __copy_table_end; ++copied)
        copy_words(copied->start, copied->end, copied->load);
    for (zeroed = __zero_table_start; zeroed != __zero_table_end; ++zeroed)
        zero_words(zeroed->start, zeroed->end);
}

static void call_all(const Function *function, const Function *end)
{
    for (; function != end; ++function)
        (*function)();
}

__attribute__((used)) void start_program(void)
{
    copy_words(__data_start, __data_end, __data_load);
    zero_words(__bss_start, __bss_end);
    if (_set_tls)
        _set_tls(__tls_base);
    SystemInit();
    initialize_further_memories();
    call_all(__preinit_array_start, __preinit_array_end);
    call_all(__init_array_start, __init_array_end);
    (void)main();
    for (;;) {
    }
}

/* C libraries call these beside constructors and destructors. */
__attribute__((weak)) void _init(void)
{
}

__attribute__((weak)) void _fini(void)
{
}

/* The stack pointer is set once more for a debugger that jumps here. */
__attribute__((naked, noreturn)) void Reset_Handler(void)
{
    __asm__ volatile("ldr r0, 1f\n"
                     "mov sp, r0\n"
                     "ldr r0, 2f\n"
                     "bx r0\n"
                     ".balign 4\n"
                     "1: .word __stack_top\n"
                     "2: .word start_program\n");
}
