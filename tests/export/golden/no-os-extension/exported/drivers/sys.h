/*
 * System control: why the system was reset, which access to the bus failed last, how long a slave
 * may take.
 *
 * Causes, error and kept word live through every reset but that of the pin hwRstn. Whoever takes a
 * cause or an error forgets it, so that the next one is told apart.
 */
#ifndef TARVO_ORIX_M1_DRIVER_SYS_H
#define TARVO_ORIX_M1_DRIVER_SYS_H

#include "tarvo_orix_m1.h"

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define SYS_BUS_TIMEOUT_MAX SYS_BUSTIMEOUT_CYCLES_Msk /* longest limit, in wait states */

/* Why an access failed. */
typedef enum {
    SYS_CAUSE_UNMAPPED, /* nothing stands at the address in this configuration */
    SYS_CAUSE_SLAVE,    /* the block at the address answered with an error */
    SYS_CAUSE_TIMEOUT,  /* the block at the address did not answer in time */
    SYS_CAUSE_ABANDONED /* it has not been ready since it did not answer in time */
} sys_cause;

/* An access that failed. */
typedef struct {
    uint32_t address;
    uint32_t bytes; /* 1, 2 or 4 */
    sys_cause cause;
    bool is_write;
    bool is_fetch; /* of an instruction */
    bool more;     /* others failed before it, of which nothing is known */
} sys_error;

/*
 * The causes of resets since they were taken, a mask of SYS_RESETCAUSE_POWERON_Msk, _PIN_Msk,
 * _WATCHDOG_Msk, _SOFTWARE_Msk, _LOCKUP_Msk and _DEBUG_Msk. Never 0 after a reset.
 */
uint32_t sys_reset_causes(const SYS_Type *sys);

/* The same, and forgets what it returns. */
uint32_t sys_take_reset_causes(SYS_Type *sys);

/* Resets the system, all but the debug logic and what this driver keeps. Does not return. */
void sys_reset(void);

/* Whether a lock-up of the processor resets the system; every reset switches that off. */
void sys_reset_on_lockup(SYS_Type *sys, bool on);

/*
 * Has a transfer fail that is not ready after so many wait states: 1 to SYS_BUS_TIMEOUT_MAX clock
 * cycles of the bus, 0 for no limit. Every reset sets the longest one. False, with nothing done: no
 * such limit.
 */
bool sys_set_bus_timeout(SYS_Type *sys, uint32_t cycles);

/* Whether an access has failed since sys_take_error(). */
bool sys_has_error(const SYS_Type *sys);

/* The last access that failed, which is forgotten then. False, with nothing done: none has. */
bool sys_take_error(SYS_Type *sys, sys_error *error);

/* A few words of English, in lower case; never null. */
const char *sys_cause_name(sys_cause cause);

/* The interrupt is there from an access that fails until sys_take_error(). Reset switches it off.
 */
void sys_enable_error_interrupt(SYS_Type *sys, bool on);

/* A word that resets of the system leave alone; 0 after one of the pin. */
void sys_keep(SYS_Type *sys, uint32_t word);
uint32_t sys_kept(const SYS_Type *sys);

#ifdef __cplusplus
}
#endif

#endif
