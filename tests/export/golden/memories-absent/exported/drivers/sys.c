#include "sys.h"

/* Application interrupt and reset control of the processor. */
static const uint32_t aircr = 0xE000ED0Cu;
static const uint32_t reset_request = 0x05FA0004u;

uint32_t sys_reset_causes(const SYS_Type *sys)
{
    return sys->RESETCAUSE;
}

uint32_t sys_take_reset_causes(SYS_Type *sys)
{
    const uint32_t causes = sys->RESETCAUSE;
    sys->RESETCAUSE = causes;
    return causes;
}

void sys_reset(void)
{
    *(volatile uint32_t *)(uintptr_t)aircr = reset_request;
    for (;;) {
    }
}

static void set(volatile uint32_t *word, uint32_t mask, bool on)
{
    *word = on ? *word | mask : *word & ~mask;
}

void sys_reset_on_lockup(SYS_Type *sys, bool on)
{
    set(&sys->CTRL, SYS_CTRL_LOCKUPRST_Msk, on);
}

bool sys_set_bus_timeout(SYS_Type *sys, uint32_t cycles)
{
    if (cycles > SYS_BUS_TIMEOUT_MAX)
        return false;
    sys->BUSTIMEOUT = cycles;
    return true;
}

bool sys_has_error(const SYS_Type *sys)
{
    return (sys->ERRINFO & SYS_ERRINFO_VALID_Msk) != 0u;
}

bool sys_take_error(SYS_Type *sys, sys_error *error)
{
    const uint32_t info = sys->ERRINFO;
    if ((info & SYS_ERRINFO_VALID_Msk) == 0u)
        return false;
    error->address = sys->ERRADDR;
    error->bytes = 1u << ((info & SYS_ERRINFO_SIZE_Msk) >> SYS_ERRINFO_SIZE_Pos);
    error->cause = (sys_cause)((info & SYS_ERRINFO_CAUSE_Msk) >> SYS_ERRINFO_CAUSE_Pos);
    error->is_write = (info & SYS_ERRINFO_WRITE_Msk) != 0u;
    error->is_fetch = (info & SYS_ERRINFO_FETCH_Msk) != 0u;
    error->more = (info & SYS_ERRINFO_MORE_Msk) != 0u;
    sys->ERRINFO = SYS_ERRINFO_VALID_Msk | SYS_ERRINFO_MORE_Msk;
    return true;
}

const char *sys_cause_name(sys_cause cause)
{
    switch (cause) {
    case SYS_CAUSE_UNMAPPED:
        return "nothing there";
    case SYS_CAUSE_SLAVE:
        return "refused by the block";
    case SYS_CAUSE_TIMEOUT:
        return "no answer in time";
    case SYS_CAUSE_ABANDONED:
        return "no answer since an earlier access";
    }
    return "unknown";
}

void sys_enable_error_interrupt(SYS_Type *sys, bool on)
{
    set(&sys->CTRL, SYS_CTRL_ERRIE_Msk, on);
}

void sys_keep(SYS_Type *sys, uint32_t word)
{
    sys->SCRATCH = word;
}

uint32_t sys_kept(const SYS_Type *sys)
{
    return sys->SCRATCH;
}
