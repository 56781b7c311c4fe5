/* Reads and writes each block of the sensor node by the exported header and drivers, on the board
 * of board.v. It runs three times: after power-on, after a reset that it requests itself, and after
 * one by the watchdog. What differs from what is expected is said by semihosting, and how many did
 * is the exit status. */
#include "tarvo_orix_m1.h"

#include "gpio.h"
#include "i2c.h"
#include "rtc.h"
#include "spi.h"
#include "sys.h"
#include "timer.h"
#include "uart.h"
#include "wdog.h"

enum {
    CLOCK = 50000000,
    BAUD = CLOCK / 16, /* sixteen cycles a bit */
    POLLS = 4000
};

/* The board's memories; the last word of the first one counts the runs. */
#define AHB1_MEMORY ((volatile uint32_t *)AHB1_BASE)
#define APB1_MEMORY ((volatile uint32_t *)APB1_BASE)
#define APB2_MEMORY ((volatile uint32_t *)APB2_BASE)
#define RUNS (AHB1_MEMORY[15])

static uint32_t failures;

/* ---- semihosting */

static uint32_t call_host(uint32_t operation, uint32_t argument)
{
    register uint32_t r0 __asm__("r0") = operation;
    register uint32_t r1 __asm__("r1") = argument;
    __asm__ volatile("bkpt 0xAB" : "+r"(r0) : "r"(r1) : "memory");
    return r0;
}

static void say(const char *text)
{
    call_host(0x04u, (uint32_t)(uintptr_t)text);
}

static void say_number(uint32_t value)
{
    static char text[11] = "0x";
    for (uint32_t i = 0u; i < 8u; ++i) {
        const uint32_t digit = (value >> (28u - 4u * i)) & 15u;
        text[2u + i] = (char)(digit < 10u ? '0' + digit : 'A' + (digit - 10u));
    }
    say(text);
}

static void finish(void)
{
    uint32_t block[2] = {0x20026u, failures};
    call_host(0x20u, (uint32_t)(uintptr_t)block);
}

static void check(const char *what, uint32_t value, uint32_t expected)
{
    if (value == expected)
        return;
    ++failures;
    say(what);
    say(": ");
    say_number(value);
    say(", expected ");
    say_number(expected);
    say("\n");
}

/* ---- exceptions */

static volatile uint32_t faults, fault_address;

/* Goes on behind the faulting instruction, which is one of 16 bits. */
__attribute__((used)) static void on_fault(uint32_t *frame)
{
    ++faults;
    fault_address = frame[6];
    frame[6] += 2u;
}

__attribute__((naked)) void HardFault_Handler(void)
{
    __asm__ volatile("mov r0, sp\n"
                     "ldr r1, =on_fault\n"
                     "bx r1\n");
}

static volatile uint32_t ticks, calls, switches;

void SysTick_Handler(void)
{
    ++ticks;
}

void SVC_Handler(void)
{
    ++calls;
}

void PendSV_Handler(void)
{
    ++switches;
}

static volatile uint32_t warnings;

void NMI_Handler(void)
{
    ++warnings;
    if (RUNS == 0u)
        wdog_kick(WDOG); /* the last time nobody does */
}

static volatile uint32_t room;

void UART0_IRQHandler(void)
{
    ++room;
    uart_disable_interrupts(UART0, UART_CTRL_TXIE_Msk);
}

static volatile char heard[8];
static volatile uint32_t heard_count;

void UART1_IRQHandler(void)
{
    uint8_t byte = 0u;
    while (uart_can_get(UART1) && uart_get(UART1, &byte, 1u) == UART_OK) {
        if (heard_count < sizeof heard)
            heard[heard_count] = (char)byte;
        ++heard_count;
    }
}

static volatile uint32_t periods;

void TIMER0_IRQHandler(void)
{
    if (timer_take(TIMER0))
        ++periods;
}

static volatile uint32_t rises;

void GPIO_IRQHandler(void)
{
    rises |= gpio_pending(GPIO);
    gpio_acknowledge(GPIO, 0xFFFFu);
}

static volatile uint32_t seconds;

void RTC_IRQHandler(void)
{
    if (rtc_take_second(RTC))
        ++seconds;
}

static volatile uint32_t i2c_commands;

void I2C_IRQHandler(void)
{
    ++i2c_commands;
    I2C->CTRL &= ~I2C_CTRL_IE_Msk;
}

static volatile uint32_t spi_bytes;

void SPI_IRQHandler(void)
{
    uint8_t byte = 0u;
    if (spi_take(SPI, &byte))
        spi_bytes = spi_bytes << 8 | byte;
}

/* The board's inputs show pins 0 to 3; a handler takes its one back. */
static volatile uint32_t external;

static void on_external(uint32_t number)
{
    external = external << 4 | (number + 1u);
    gpio_clear(GPIO, 1u << number);
    for (volatile int i = 0; i < 4; ++i) { /* the pin is synchronised */
    }
}

void EXTINT0_IRQHandler(void)
{
    on_external(0u);
}

void EXTINT1_IRQHandler(void)
{
    on_external(1u);
}

void EXTINT2_IRQHandler(void)
{
    on_external(2u);
}

void EXTINT3_IRQHandler(void)
{
    on_external(3u);
}

/* Waits for an interrupt to have counted so far, but not for ever. */
static void wait_for(const volatile uint32_t *count, uint32_t value)
{
    for (uint32_t i = 0u; i < POLLS && *count < value; ++i) {
    }
}

/* ---- blocks */

static void use_processor(void)
{
    __asm__ volatile("svc 1");
    check("supervisor calls", calls, 1u);
    SCS->ICSR = SCS_ICSR_PENDSVSET_Msk;
    __ISB();
    check("PendSV", switches, 1u);
    check("SysTick_Config", SysTick_Config(200u), 0u);
    while (ticks < 2u)
        __WFI();
    SCS->SYST_CSR = 0u;
    check("identity", SCS->CPUID & SCS_CPUID_PARTNO_Msk, SCS_CPUID_RESET & SCS_CPUID_PARTNO_Msk);
}

static void use_gpio(void)
{
    check("GPIO_OUTEN after reset", GPIO->OUTEN, GPIO_OUTEN_RESET);
    gpio_set_direction(GPIO, 0x00FFu, true);
    gpio_write(GPIO, 0x00FFu, 0x00A0u);
    check("outputs", gpio_outputs(GPIO) & 0xFFu, 0xA0u);
    check("pins", gpio_read(GPIO), 0xA0A0u); /* the upper ones show the lower ones */
    gpio_toggle(GPIO, 0x00F0u);
    check("toggled", gpio_read(GPIO), 0x5050u);
    gpio_enable_interrupts(GPIO, 0x8000u, GPIO_RISING);
    NVIC_EnableIRQ(GPIO_IRQn);
    gpio_set(GPIO, 0x0080u);
    wait_for(&rises, 0x8000u);
    check("interrupt of pin 15", rises, 0x8000u);
    gpio_disable_interrupts(GPIO, 0x8000u);
    rises = 0u;
    gpio_enable_interrupts(GPIO, 0x8000u, GPIO_FALLING);
    check("no edge yet", rises, 0u);
    gpio_clear(GPIO, 0x0080u);
    wait_for(&rises, 0x8000u);
    check("interrupt of its fall", rises, 0x8000u);
    gpio_disable_interrupts(GPIO, 0x8000u);
    gpio_clear(GPIO, 0x00FFu);
}

static void use_external_interrupts(void)
{
    NVIC_SetPriority(EXTINT0_IRQn, 2u);
    NVIC_SetPriority(EXTINT1_IRQn, 2u);
    NVIC_SetPriority(EXTINT2_IRQn, 1u);
    NVIC_SetPriority(EXTINT3_IRQn, 3u);
    check("priority", NVIC_GetPriority(EXTINT3_IRQn), 3u);
    __disable_irq();
    NVIC_EnableIRQ(EXTINT0_IRQn);
    NVIC_EnableIRQ(EXTINT1_IRQn);
    NVIC_EnableIRQ(EXTINT2_IRQn);
    NVIC_EnableIRQ(EXTINT3_IRQn);
    gpio_set(GPIO, 0x000Fu);
    for (uint32_t i = 0u; i < POLLS && NVIC_GetPendingIRQ(EXTINT3_IRQn) == 0u; ++i) {
    }
    check("masked", external, 0u);
    __enable_irq();
    wait_for(&external, 0x3124u);
    check("external interrupts by priority", external, 0x3124u);
    check("pins taken back", gpio_outputs(GPIO) & 0x0Fu, 0u);
}

static void use_uarts(void)
{
    uint8_t byte = 0u;
    check("UART_BAUDDIV after reset", UART0->BAUDDIV, UART_BAUDDIV_RESET);
    check("uart_init 0", uart_init(UART0, CLOCK, BAUD), UART_OK);
    check("uart_init 1", uart_init(UART1, CLOCK, BAUD), UART_OK);
    check("uart_baud", uart_baud(UART1, CLOCK), BAUD);
    NVIC_EnableIRQ(UART0_IRQn);
    uart_enable_interrupts(UART0, UART_CTRL_TXIE_Msk);
    wait_for(&room, 1u);
    check("room for a byte", room, 1u);
    uart_enable_interrupts(UART1, UART_CTRL_RXIE_Msk);
    NVIC_EnableIRQ(UART1_IRQn);
    check("uart_write", uart_write(UART0, "sensor", 6u, POLLS), 6u);
    wait_for(&heard_count, 6u);
    check("bytes heard", heard_count, 6u);
    for (uint32_t i = 0u; i < 6u; ++i)
        check("byte heard", (uint32_t)heard[i], (uint32_t)("sensor"[i]));
    check("uart_put", uart_put(UART1, 0x5Au, POLLS), UART_OK);
    check("uart_get", uart_get(UART0, &byte, POLLS), UART_OK);
    check("byte of the other line", byte, 0x5Au);
    check("uart_flush", uart_flush(UART1, POLLS), UART_OK);
    check("errors", uart_take_errors(UART0) | uart_take_errors(UART1), 0u);
}

static void use_timer(void)
{
    NVIC_EnableIRQ(TIMER0_IRQn);
    check("timer_start", timer_start(TIMER0, 60u, TIMER_CLOCK, true), true);
    wait_for(&periods, 3u);
    timer_stop(TIMER0);
    check("three periods", periods >= 3u, 1u);
    check("reload", TIMER0->RELOAD, 59u);
    NVIC_DisableIRQ(TIMER0_IRQn);
    /* Edges at the external input, which shows pin 4. */
    check("timer_start, edges", timer_start(TIMER0, 100u, TIMER_EXTERNAL, false), true);
    const uint32_t before = timer_left(TIMER0);
    for (uint32_t i = 0u; i < 3u; ++i) {
        gpio_set(GPIO, 0x10u);
        (void)gpio_read(GPIO);
        gpio_clear(GPIO, 0x10u);
        (void)gpio_read(GPIO);
    }
    check("three edges", before - timer_left(TIMER0), 3u);
    timer_stop(TIMER0);
    check("timer_start, gated", timer_start(TIMER0, 100u, TIMER_GATED, false), true);
    const uint32_t start = timer_left(TIMER0);
    check("stands while the input is low", timer_left(TIMER0), start);
    gpio_set(GPIO, 0x10u);
    (void)gpio_read(GPIO);
    check("counts while it is high", timer_left(TIMER0) < start, 1u);
    gpio_clear(GPIO, 0x10u);
    timer_stop(TIMER0);
}

static void use_rtc(void)
{
    check("rtc_start", rtc_start(RTC, 3u), true); /* a second of three cycles of its clock */
    rtc_set(RTC, 1000u);
    NVIC_EnableIRQ(RTC_IRQn);
    rtc_enable_second_interrupt(RTC, true);
    check("rtc_set_alarm", rtc_set_alarm(RTC, 1003u, false), true);
    wait_for(&seconds, 4u);
    check("seconds", seconds >= 4u, 1u);
    check("time", rtc_get(RTC) >= 1004u && rtc_get(RTC) < 1100u, 1u);
    check("alarm", rtc_take_alarm(RTC), true);
    rtc_enable_second_interrupt(RTC, false);
    check("another second", rtc_wait_second(RTC, POLLS) && rtc_wait_second(RTC, POLLS), 1u);
    check("no other alarm", rtc_take_alarm(RTC), false);
    rtc_stop(RTC);
}

static void use_spi(void)
{
    static const uint8_t sent[3] = {0x96u, 0x0Fu, 0x31u};
    static uint8_t received[3];
    check("spi_init", spi_init(SPI, CLOCK, CLOCK / 8u, SPI_MODE_0, false), SPI_OK);
    spi_select(SPI, true);
    check("spi_transfer", spi_transfer(SPI, sent, received, 3u, POLLS), SPI_OK);
    for (uint32_t i = 0u; i < 3u; ++i)
        check("inverted byte", received[i], (uint32_t)(uint8_t)~sent[i]);
    spi_enable_interrupt(SPI, true);
    NVIC_EnableIRQ(SPI_IRQn);
    check("spi_start", spi_start(SPI, 0x3Cu), SPI_OK);
    wait_for(&spi_bytes, 0xC3u);
    check("byte by interrupt", spi_bytes, 0xC3u);
    spi_select(SPI, false);
}

static void use_i2c(void)
{
    static const uint8_t sent[3] = {0x04u, 0xE7u, 0x18u}; /* a place and what is to stand there */
    static uint8_t received[2];
    check("I2C_PRESCALE after reset", I2C->PRESCALE, I2C_PRESCALE_RESET);
    check("i2c_init", i2c_init(I2C, CLOCK, CLOCK / 80u), I2C_OK);
    NVIC_EnableIRQ(I2C_IRQn);
    I2C->CTRL |= I2C_CTRL_IE_Msk;
    check("i2c_probe", i2c_probe(I2C, 0x2Du, POLLS), I2C_OK);
    check("nobody", i2c_probe(I2C, 0x2Eu, POLLS), I2C_ERROR_NO_DEVICE);
    check("i2c_write", i2c_write(I2C, 0x2Du, sent, 3u, POLLS), I2C_OK);
    check("i2c_write_read", i2c_write_read(I2C, 0x2Du, sent, 1u, received, 2u, POLLS), I2C_OK);
    check("interrupt of the first command", i2c_commands, 1u);
    check("first byte", received[0], 0xE7u);
    check("second byte", received[1], 0x18u);
}

static void use_memory(const char *what, volatile uint32_t *words)
{
    volatile uint8_t *bytes = (volatile uint8_t *)words;
    volatile uint16_t *halves = (volatile uint16_t *)words;
    words[2] = 0x12345678u;
    words[3] = 0xCAFEF00Du;
    bytes[9] = 0xABu;
    halves[7] = 0xBEEFu;
    check(what, words[2], 0x1234AB78u);
    check(what, words[3], 0xBEEFF00Du);
    check(what, bytes[11], 0x12u);
    check(what, halves[6], 0xF00Du);
    check(what, (uint32_t)(int32_t)(int8_t)bytes[15], 0xFFFFFFBEu);
}

/* The instructions whose addresses a fault has to tell. */
__attribute__((naked, noinline)) static uint32_t read_word(uint32_t address)
{
    (void)address;
    __asm__ volatile(".global read_word_here\n"
                     "read_word_here: ldr r0, [r0]\n"
                     "bx lr\n");
}

extern const char read_word_here[];

static void expect_fault(const char *what, uint32_t address)
{
    const uint32_t before = faults;
    fault_address = 0u;
    (void)read_word(address);
    check(what, faults - before, 1u);
    check(what, fault_address, (uint32_t)(uintptr_t)read_word_here);
}

static volatile uint32_t bus_errors;
static sys_error_t bus_error;

void SYS_IRQHandler(void)
{
    bus_errors += sys_take_error(SYS, &bus_error);
}

/* Reads a word of an address, which faults, and is told afterwards. */
static void expect_error(const char *what, uint32_t address, sys_cause_t cause)
{
    sys_error_t error;
    expect_fault(what, address);
    check(what, sys_take_error(SYS, &error), true);
    check(what, error.address, address);
    check(what, error.cause, cause);
    check(what, error.bytes, 4u);
    check(what, error.is_write, false);
    check(what, error.is_fetch, false);
    check(what, error.more, false);
}

static void use_errors(void)
{
    const uint32_t before = faults;
    (void)read_word(AHB1_BASE);
    check("no fault", faults - before, 0u);
    check("no error", sys_has_error(SYS), false);
    expect_error("nothing between blocks", 0x50003000u, SYS_CAUSE_UNMAPPED);
    expect_error("nothing above DTCM", DTCM_BASE + DTCM_SIZE, SYS_CAUSE_UNMAPPED);
    expect_error("error of an extension port", APB2_BASE + 0x100u, SYS_CAUSE_SLAVE);
    expect_fault("not aligned", AHB1_BASE + 2u);
    check("the bus does not see it", sys_has_error(SYS), false);
    /* The port does not answer there at all; elsewhere it does, as before. */
    sys_set_bus_timeout(SYS, 100u);
    expect_error("no answer", APB2_BASE + 0x200u, SYS_CAUSE_TIMEOUT);
    expect_error("no answer again", APB2_BASE + 0x200u, SYS_CAUSE_TIMEOUT);
    check("answer", APB2_MEMORY[2], 0x1234AB78u);
    sys_set_bus_timeout(SYS, 65535u);
    sys_enable_error_interrupt(SYS, true);
    NVIC_EnableIRQ(SYS_IRQn);
    expect_fault("told by an interrupt", APB2_BASE + 0x100u);
    wait_for(&bus_errors, 1u);
    check("interrupt of an error", bus_errors, 1u);
    check("address of the error", bus_error.address, APB2_BASE + 0x100u);
    sys_enable_error_interrupt(SYS, false);
}

static void use_system(uint32_t causes)
{
    check("cause of the reset", sys_take_reset_causes(SYS), causes);
    check("taken", sys_reset_causes(SYS), 0u);
    check("UART0 is there", SYS->BLOCKS & SYS_BLOCKS_UART0_Msk, SYS_BLOCKS_UART0_Msk);
    check("UART1 is there", SYS->BLOCKS & SYS_BLOCKS_UART1_Msk, SYS_BLOCKS_UART1_Msk);
    check("TIMER1 is not", SYS->BLOCKS & SYS_BLOCKS_TIMER1_Msk, 0u);
    check("APB extension ports", SYS->PORTS, 3u);
    check("interrupts", (SYS->CONFIG & SYS_CONFIG_IRQS_Msk) >> SYS_CONFIG_IRQS_Pos, 32u);
    check("kept", sys_kept(SYS), 0x5A000000u * RUNS);
    sys_keep(SYS, 0x5A000000u * (RUNS + 1u));
}

static void use_watchdog(void)
{
    check("wdog_start", wdog_start(WDOG, 200u, false), true);
    wait_for(&warnings, 1u);
    check("watchdog's interrupt", warnings, 1u);
    check("kicked", wdog_is_pending(WDOG), false);
    check("counts", wdog_left(WDOG) <= 200u, 1u);
    wdog_stop(WDOG);
    wdog_lock(WDOG);
    check("locked", wdog_is_locked(WDOG), true);
    wdog_unlock(WDOG);
    check("unlocked", wdog_is_locked(WDOG), false);
}

int main(void)
{
    const uint32_t run = RUNS;
    if (run == 0u) {
        use_system(SYS_RESETCAUSE_POWERON_Msk);
        use_processor();
        use_gpio();
        use_external_interrupts();
        use_uarts();
        use_timer();
        use_rtc();
        use_spi();
        use_i2c();
        use_memory("AHB1", AHB1_MEMORY);
        use_memory("APB1", APB1_MEMORY);
        use_memory("APB2", APB2_MEMORY);
        use_errors();
        use_watchdog();
        if (failures != 0u)
            finish();
        gpio_write(GPIO, 0x00FFu, 0x00C3u);
        RUNS = 1u;
        sys_reset();
    }
    use_system(run == 1u ? SYS_RESETCAUSE_SOFTWARE_Msk : SYS_RESETCAUSE_WATCHDOG_Msk);
    check("reset of GPIO", GPIO->OUTEN, GPIO_OUTEN_RESET);
    check("reset of GPIO", GPIO->OUT, GPIO_OUT_RESET);
    check("reset of UART0", UART0->CTRL, UART_CTRL_RESET);
    check("variables", warnings + faults, 0u);
    if (run == 1u) {
        RUNS = 2u;
        check("wdog_start, reset", wdog_start(WDOG, 100u, true), true);
        for (uint32_t i = 0u; i < POLLS; ++i)
            __NOP();
        check("reset by the watchdog", 0u, 1u);
    }
    check("runs", run, 2u);
    finish();
    return 0;
}
