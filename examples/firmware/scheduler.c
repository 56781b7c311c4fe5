/* Three tasks beside main() without an operating system: the system timer counts ticks and asks for
 * PendSV, which changes over from one stack to the next. Two tasks write a letter on UART0, one
 * each tick and one every second tick; the third counts and never gives the processor up. */
#include "system_tarvo_orix_m1.h"
#include "uart.h"

enum { tasks = 4, words = 64, tick = 1000 /* clock cycles */, steps = 6 };

struct task {
    uint32_t *stack; /* while another one runs */
    uint32_t wakes;  /* the tick from which on it can run */
};

static uint32_t stacks[tasks][words]
    __attribute__((aligned(8))); /* the first one is that of the handlers */
static struct task table[tasks];
static uint32_t current; /* main() is task 0 */
static volatile uint32_t ticks;
static volatile uint32_t written[tasks];
static volatile uint32_t counted;

void SysTick_Handler(void)
{
    ++ticks;
    SCS->ICSR = SCS_ICSR_PENDSVSET_Msk;
}

/* The stack of the next task that can run. The last one always can. */
__attribute__((used)) uint32_t *next_stack(uint32_t *stack)
{
    table[current].stack = stack;
    do
        current = (current + 1u) % tasks;
    while ((int32_t)(ticks - table[current].wakes) < 0);
    return table[current].stack;
}

/* The processor has put r0 to r3, r12, lr, pc and the flags on the task's stack. */
__attribute__((naked)) void PendSV_Handler(void)
{
    __asm__ volatile(".syntax unified\n"
                     "mrs r0, psp\n"
                     "subs r0, #32\n"
                     "mov r1, r0\n"
                     "stmia r1!, {r4-r7}\n"
                     "mov r4, r8\n"
                     "mov r5, r9\n"
                     "mov r6, r10\n"
                     "mov r7, r11\n"
                     "stmia r1!, {r4-r7}\n"
                     "push {r3, lr}\n"
                     "bl next_stack\n"
                     "mov r1, r0\n"
                     "adds r1, #16\n"
                     "ldmia r1!, {r4-r7}\n"
                     "mov r8, r4\n"
                     "mov r9, r5\n"
                     "mov r10, r6\n"
                     "mov r11, r7\n"
                     "msr psp, r1\n"
                     "ldmia r0!, {r4-r7}\n"
                     "pop {r3, pc}\n");
}

static void wait_ticks(uint32_t count)
{
    table[current].wakes = ticks + count;
    SCS->ICSR = SCS_ICSR_PENDSVSET_Msk;
    __asm__ volatile("dsb\n"
                     "isb" ::
                         : "memory");
}

static void write_letters(uint32_t task, char letter, uint32_t pause)
{
    uint32_t i;

    for (i = 0; i < steps / pause; ++i) {
        wait_ticks(pause);
        (void)uart_put(UART0, (uint8_t)letter, 10000u);
        ++written[task];
    }
    for (;;)
        wait_ticks(0x40000000u);
}

static void task_a(void)
{
    write_letters(1u, 'a', 1u);
}

static void task_b(void)
{
    write_letters(2u, 'b', 2u);
}

static void task_count(void)
{
    for (;;)
        ++counted;
}

static void begin(uint32_t task, void (*function)(void))
{
    uint32_t *stack = &stacks[task][words - 16]; /* r4 to r11, then what the processor takes */

    stack[14] = (uint32_t)function;
    stack[15] = 0x01000000u; /* flags: Thumb instructions */
    table[task].stack = stack;
}

int main(void)
{
    uint32_t before;

    if (uart_init(UART0, SystemCoreClock, 3125000u) != UART_OK)
        return 1;
    begin(1u, task_a);
    begin(2u, task_b);
    begin(3u, task_count);
    /* main() keeps its stack, which is a task's from here on; the handlers get one of their own. */
    __asm__ volatile(".syntax unified\n"
                     "mrs r0, msp\n"
                     "msr psp, r0\n"
                     "msr msp, %0\n"
                     "movs r0, #2\n"
                     "msr control, r0\n"
                     "isb" ::"r"(&stacks[0][words])
                     : "r0", "memory");
    SCS->SHPR3 = SCS_SHPR3_PRI_14_Msk; /* PendSV after all others */
    SCS->SYST_RVR = tick - 1u;
    SCS->SYST_CVR = 0u;
    SCS->SYST_CSR = SCS_SYST_CSR_ENABLE_Msk | SCS_SYST_CSR_TICKINT_Msk | SCS_SYST_CSR_CLKSOURCE_Msk;

    wait_ticks(steps);
    before = counted;
    wait_ticks(2u);
    SCS->SYST_CSR = 0u;
    if (before == 0u || counted == before)
        return 2;
    if (written[1] != steps || written[2] != steps / 2)
        return 3;
    (void)uart_put(UART0, '\n', 10000u);
    return 0;
}
