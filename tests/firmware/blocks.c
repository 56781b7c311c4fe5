/* Reads and writes each block of the sensor node by the exported header and drivers, on the board
 * of board.v. It runs three times: after power-on, after a reset that it requests itself, and after
 * one by the watchdog. What differs from what is expected is said by semihosting, and how many did
 * is the exit status; with ENDS_AT_A_FAILURE the first one ends it. With FEW_BLOCKS serial lines,
 * timer and clock are left out, for small memories. */
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
#ifdef FEW_BLOCKS
    (void)what; /* the texts take too much room */
#else
    say(what);
    say(": ");
#endif
    say_number(value);
    say(", expected ");
    say_number(expected);
    say("\n");
#ifdef ENDS_AT_A_FAILURE
    finish();
#endif
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

#ifndef FEW_BLOCKS
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
#endif

static volatile uint32_t rises;

void GPIO_IRQHandler(void)
{
    rises |= gpio_pending(GPIO);
    gpio_acknowledge(GPIO, 0xFFFFu);
}

#ifndef FEW_BLOCKS
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
    uint32_t word = 0u;
    uint32_t words = 0u;
    if ((SPI->CTRL & SPI_CTRL_FIFO_Msk) == 0u) {
        if (spi_take(SPI, &byte))
            spi_bytes = spi_bytes << 8 | byte;
        return;
    }
    while (spi_get(SPI, &word))
        words = words << 8 | word;
    spi_bytes = words;
}
#endif

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
    /* Both edges, through a filter, and a pulse that it drops. */
    check("gpio_set_filter_interval", gpio_set_filter_interval(GPIO, 40u), 1u);
    gpio_set_filters(GPIO, 0x8000u, true);
    check("a filter's pin", gpio_read(GPIO) & 0x8000u, 0u);
    rises = 0u;
    gpio_enable_interrupts(GPIO, 0x8000u, GPIO_CHANGING);
    gpio_toggle(GPIO, 0x0080u);
    gpio_toggle(GPIO, 0x0080u);
    for (volatile int i = 0; i < 20; ++i) {
    }
    check("a short pulse", rises, 0u);
    gpio_toggle(GPIO, 0x0080u);
    check("a driven pin at once", gpio_read_unfiltered(GPIO) & 0x8080u, 0x8080u);
    wait_for(&rises, 0x8000u);
    check("interrupt of a filtered rise", rises, 0x8000u);
    rises = 0u;
    gpio_toggle(GPIO, 0x0080u);
    wait_for(&rises, 0x8000u);
    check("interrupt of a filtered fall", rises, 0x8000u);
    check("nobody else drives", gpio_disputed(GPIO), 0u);
    gpio_disable_interrupts(GPIO, 0x8000u);
    gpio_set_filters(GPIO, 0x8000u, false);
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

/* Nine data bits, parity, two stop bits, half a cycle more a bit; a wrong parity, a break, the
 * loop. */
#ifndef FEW_BLOCKS
static void use_uart_formats(void)
{
    uint32_t character = 0u;
    NVIC_DisableIRQ(UART1_IRQn);
    check("uart_init 0", uart_init(UART0, 2u * CLOCK, 2u * CLOCK * 2u / 33u), UART_OK);
    check("uart_init 1", uart_init(UART1, 2u * CLOCK, 2u * CLOCK * 2u / 33u), UART_OK);
    check("UART_BAUDDIV", UART0->BAUDDIV, 16u | 32u << UART_BAUDDIV_FRACTION_Pos);
    check("uart_set_format 0", uart_set_format(UART0, 9u, UART_PARITY_ODD, 2u, true), UART_OK);
    check("uart_set_format 1", uart_set_format(UART1, 9u, UART_PARITY_ODD, 2u, true), UART_OK);
    check("uart_put_character", uart_put_character(UART0, 0x155u, POLLS), UART_OK);
    check("uart_put_character", uart_put_character(UART0, 0x0AAu, POLLS), UART_OK);
    check("uart_get_character", uart_get_character(UART1, &character, POLLS), UART_OK);
    check("nine bits", character, 0x155u);
    check("uart_get_character", uart_get_character(UART1, &character, POLLS), UART_OK);
    check("nine bits", character, 0x0AAu);
    check("uart_flush", uart_flush(UART0, POLLS), UART_OK);
    check("uart_set_format 1", uart_set_format(UART1, 9u, UART_PARITY_EVEN, 1u, true), UART_OK);
    check("uart_set_thresholds", uart_set_thresholds(UART1, 3u, 1u), UART_OK);
    check("uart_set_timeout", uart_set_timeout(UART1, 30u), UART_OK);
    uart_enable_interrupts(UART1, UART_CTRL_RXIE_Msk | UART_CTRL_TIMEOUTIE_Msk);
    check("uart_put_character", uart_put_character(UART0, 0x101u, POLLS), UART_OK);
    check("uart_send_break", uart_send_break(UART0, POLLS), UART_OK);
    check("uart_flush", uart_flush(UART0, POLLS), UART_OK);
    check("below the threshold", NVIC_GetPendingIRQ(UART1_IRQn), 0u);
    for (uint32_t i = 0u; i < POLLS && NVIC_GetPendingIRQ(UART1_IRQn) == 0u; ++i) {
    }
    check("time-out", UART1->STATUS & UART_STATUS_TIMEOUT_Msk, UART_STATUS_TIMEOUT_Msk);
    uart_disable_interrupts(UART1, UART_CTRL_RXIE_Msk | UART_CTRL_TIMEOUTIE_Msk);
    check("uart_get_character", uart_get_character(UART1, &character, 1u), UART_OK);
    check("wrong parity", character, 0x101u | UART_DATA_PARITY_Msk);
    check("uart_get_character", uart_get_character(UART1, &character, 1u), UART_OK);
    check("break", character, UART_DATA_BREAK_Msk | UART_DATA_FRAME_Msk);
    check("errors", uart_take_errors(UART1),
          UART_STATUS_PARITY_Msk | UART_STATUS_FRAME_Msk | UART_STATUS_BREAK_Msk);
    uart_set_loopback(UART0, true);
    check("uart_put", uart_put(UART0, 0x3Cu, POLLS), UART_OK);
    check("uart_get_character", uart_get_character(UART0, &character, POLLS), UART_OK);
    check("heard from itself", character, 0x3Cu);
    check("uart_flush", uart_flush(UART0, POLLS), UART_OK);
    uart_set_loopback(UART0, false);
    check("not by the other one", uart_can_get(UART1), false);
    check("errors", uart_take_errors(UART0) | uart_take_errors(UART1), 0u);
    check("identity", UART0->ID, UART_ID_RESET);
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
    use_uart_formats();
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
    /* A compare value, and a single period with a prescaler. */
    check("timer_set_compare", timer_set_compare(TIMER0, 20u, false), true);
    check("timer_start_scaled", timer_start_scaled(TIMER0, 60u, 2u, TIMER_CLOCK, TIMER_ONCE, false),
          true);
    check("no match yet", timer_take_match(TIMER0), false);
    check("a single period", timer_wait(TIMER0, POLLS), true);
    check("is over", timer_is_running(TIMER0), false);
    check("match", timer_take_match(TIMER0), true);
    /* The length of a pulse of pin 4. */
    uint32_t rise = 0u, fall = 0u;
    bool is_lost = true;
    timer_stop(TIMER0);
    timer_set_capture(TIMER0, TIMER_BOTH, false);
    check("timer_start, capture", timer_start(TIMER0, TIMER_COUNTS_MAX, TIMER_CLOCK, false), true);
    gpio_set(GPIO, 0x10u);
    (void)gpio_read(GPIO);
    check("rise", timer_take_capture(TIMER0, &rise, &is_lost), true);
    check("nothing lost", is_lost, false);
    for (volatile uint32_t i = 0u; i < 20u; ++i) {
    }
    gpio_clear(GPIO, 0x10u);
    (void)gpio_read(GPIO);
    check("fall", timer_take_capture(TIMER0, &fall, &is_lost), true);
    check("length of the pulse", rise - fall > 60u && rise - fall < 2000u, 1u);
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
    /* Ticks between the seconds, and an alarm each third second. */
    uint32_t cycles = 9u;
    check("rtc_start, ticks", rtc_start(RTC, 8u), true);
    rtc_set_fine(RTC, 2000u, 7u);
    check("begins late in a second", rtc_wait_second(RTC, POLLS), true);
    check("the next one", rtc_get_fine(RTC, &cycles), 2001u);
    check("has begun", cycles < 8u, 1u);
    check("rtc_set_tick", rtc_set_tick(RTC, 2u, false), true);
    for (uint32_t i = 0u; i < POLLS && !rtc_take_tick(RTC); ++i) {
    }
    for (uint32_t i = 0u; i < POLLS && !rtc_take_tick(RTC); ++i) {
    }
    check("ticks", rtc_get(RTC) <= 2002u, 1u);
    check("rtc_calibrate", rtc_calibrate(RTC, 1000), true);
    check("rtc_set_alarm_every", rtc_set_alarm_every(RTC, 2000u, 3u, false), true);
    check("one that is past", rtc_take_alarm(RTC), true);
    const uint32_t next = RTC->ALARM;
    check("the next one", (next - 2000u) % 3u, 0u);
    for (uint32_t i = 0u; i < POLLS && !rtc_take_alarm(RTC); ++i) {
    }
    check("at its time", rtc_get(RTC), next);
    /* The clock goes on through the resets that follow. */
    check("rtc_start, resets", rtc_start(RTC, 3u), true);
    rtc_set(RTC, 3000u);
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
    /* Five words of 32 bits through the FIFOs, selected on their own, more than a register has. */
    static const uint32_t sent_words[5] = {0x80000001u, 0x12345678u, 0u, 0xFFFFFFFFu, 0xCAFEF00Du};
    static uint32_t received_words[5];
    spi_enable_interrupt(SPI, false);
    check("spi_set_format", spi_set_format(SPI, 32u, 0u), SPI_OK);
    check("spi_set_select", spi_set_select(SPI, SPI_SELECT_WORD, 4u, 4u, 4u), SPI_OK);
    check("spi_transfer_words", spi_transfer_words(SPI, sent_words, received_words, 5u, POLLS),
          SPI_OK);
    for (uint32_t i = 0u; i < 5u; ++i)
        check("inverted word", received_words[i], ~sent_words[i]);
    /* The FIFO asks for more by its interrupt, at half the clock. */
    check("spi_init, fast", spi_init(SPI, CLOCK, CLOCK / 2u, SPI_MODE_0, false), SPI_OK);
    check("spi_set_select, burst", spi_set_select(SPI, SPI_SELECT_BURST, 0u, 0u, 0u), SPI_OK);
    check("spi_set_thresholds", spi_set_thresholds(SPI, 3u, 0u), SPI_OK);
    check("spi_use_fifos", spi_use_fifos(SPI, true), SPI_OK);
    spi_enable_interrupts(SPI, SPI_INTEN_RXREADY_Msk);
    check("spi_put", spi_put(SPI, 0x11u) && spi_put(SPI, 0x22u) && spi_put(SPI, 0x33u), 1u);
    wait_for(&spi_bytes, 0xEEDDCCu);
    check("words by interrupt", spi_bytes, 0xEEDDCCu);
    check("errors of SPI", spi_take_errors(SPI), 0u);
    check("spi_use_fifos, off", spi_use_fifos(SPI, false), SPI_OK);
}

static void use_i2c(void)
{
    static const uint8_t sent[3] = {0x04u, 0xE7u, 0x18u}; /* a place and what is to stand there */
    static uint8_t received[2];
    const uint16_t own = I2C_TEN_BITS(0x2A5u);
    uint8_t taken = 0u;
    uint32_t what = 0u;
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
    check("i2c_recover", i2c_recover(I2C, POLLS), I2C_OK);
    /* It calls itself by ten bits. */
    check("i2c_target_start", i2c_target_start(I2C, own, 0u, 0u), I2C_OK);
    check("i2c_target_put", i2c_target_put(I2C, 0x6Bu), true);
    check("to itself", i2c_write_read(I2C, own, sent, 1u, received, 1u, POLLS), I2C_OK);
    check("i2c_target_get", i2c_target_get(I2C, &taken, &what), true);
    check("byte to itself", taken, 0x04u);
    check("first byte to itself", what, I2C_BYTE_FIRST);
    check("byte from itself", received[0], 0x6Bu);
    i2c_target_stop(I2C);
}
#endif

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
static sys_error bus_error;

void SYS_IRQHandler(void)
{
    bus_errors += sys_take_error(SYS, &bus_error);
}

/* Reads a word of an address, which faults, and is told afterwards. */
static void expect_error(const char *what, uint32_t address, sys_cause cause)
{
    sys_error error;
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
    check("sys_set_bus_timeout", sys_set_bus_timeout(SYS, 100u), true);
    expect_error("no answer", APB2_BASE + 0x200u, SYS_CAUSE_TIMEOUT);
    expect_error("no answer again", APB2_BASE + 0x200u, SYS_CAUSE_TIMEOUT);
    check("answer", APB2_MEMORY[2], 0x1234AB78u);
    check("sys_set_bus_timeout, longest", sys_set_bus_timeout(SYS, SYS_BUS_TIMEOUT_MAX), true);
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
    check("wdog_start_window", wdog_start_window(WDOG, 60000u, 100u, false), true);
    wdog_kick(WDOG); /* too early; the handler answers with one that is in time */
    wait_for(&warnings, 2u);
    check("sign of life too early", warnings, 2u);
    check("answered", wdog_is_pending(WDOG), false);
    check("wdog_stop", wdog_stop(WDOG), true);
    wdog_lock(WDOG);
    check("locked", wdog_is_locked(WDOG), true);
    wdog_unlock(WDOG);
    check("unlocked", wdog_is_locked(WDOG), false);
}

static volatile uint32_t first_causes = SYS_RESETCAUSE_POWERON_Msk; /* a debugger knows others */

int main(void)
{
    const uint32_t run = RUNS;
    if (run == 0u) {
        use_system(first_causes);
        use_processor();
        use_gpio();
        use_external_interrupts();
#ifndef FEW_BLOCKS
        use_uarts();
        use_timer();
        use_rtc();
        use_spi();
        use_i2c();
#endif
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
#ifndef FEW_BLOCKS
    check("the time was set before", rtc_is_set(RTC), true);
    check("the time has gone on", rtc_get(RTC) > 3000u && rtc_get(RTC) < 4000u, 1u);
    check("no interrupt of the RTC", RTC->CTRL, RTC_CTRL_EN_Msk);
    if (run == 2u)
        check("after the other reset", rtc_get(RTC) > AHB1_MEMORY[14], 1u);
    AHB1_MEMORY[14] = rtc_get(RTC);
#endif
    check("seal of the watchdog", wdog_is_sealed(WDOG), false);
    if (run == 1u) {
        RUNS = 2u;
        check("wdog_start, reset", wdog_start(WDOG, 100u, true), true);
        wdog_seal(WDOG);
        check("sealed", wdog_stop(WDOG), false);
        for (uint32_t i = 0u; i < POLLS; ++i)
            __NOP();
        check("reset by the watchdog", 0u, 1u);
    }
    check("runs", run, 2u);
    finish();
    return 0;
}
