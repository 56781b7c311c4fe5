#include "wdog.h"

static const uint32_t kick_key = 0x4B49434Bu;
static const uint32_t unlock_key = 0x554E4C4Bu;
static const uint32_t seal_key = 0x5345414Cu;

static bool start(WDOG_Type *wdog, uint32_t cycles, uint32_t window, bool reset_allowed)
{
    if (wdog_is_sealed(wdog))
        return false;
    wdog_unlock(wdog);
    wdog->CTRL = 0u;
    wdog->LOAD = cycles - 1u;
    wdog->WINDOW = window;
    wdog_kick(wdog); /* takes a pending interrupt back before the new period begins */
    wdog->CTRL = WDOG_CTRL_EN_Msk | (reset_allowed ? WDOG_CTRL_RSTEN_Msk : 0u);
    wdog_lock(wdog);
    return true;
}

bool wdog_start(WDOG_Type *wdog, uint32_t cycles, bool reset_allowed)
{
    return cycles != 0u && start(wdog, cycles, 0xFFFFFFFFu, reset_allowed);
}

bool wdog_start_window(WDOG_Type *wdog, uint32_t cycles, uint32_t window, bool reset_allowed)
{
    return window != 0u && window <= cycles && start(wdog, cycles, window - 1u, reset_allowed);
}

bool wdog_stop(WDOG_Type *wdog)
{
    if (wdog_is_sealed(wdog))
        return false;
    wdog_unlock(wdog);
    wdog->CTRL = 0u;
    wdog_kick(wdog);
    wdog_lock(wdog);
    return true;
}

bool wdog_count_while_halted(WDOG_Type *wdog, bool counts)
{
    const uint32_t ctrl = wdog->CTRL & ~WDOG_CTRL_DBGRUN_Msk;
    if (wdog_is_sealed(wdog))
        return false;
    wdog_unlock(wdog);
    wdog->CTRL = ctrl | (counts ? WDOG_CTRL_DBGRUN_Msk : 0u);
    wdog_lock(wdog);
    return true;
}

void wdog_kick(WDOG_Type *wdog)
{
    wdog->KICK = kick_key;
}

bool wdog_is_pending(const WDOG_Type *wdog)
{
    return (wdog->STATUS & WDOG_STATUS_PENDING_Msk) != 0u;
}

bool wdog_was_early(const WDOG_Type *wdog)
{
    return (wdog->STATUS & WDOG_STATUS_EARLY_Msk) != 0u;
}

uint32_t wdog_left(const WDOG_Type *wdog)
{
    return wdog->COUNT;
}

void wdog_unlock(WDOG_Type *wdog)
{
    wdog->LOCK = unlock_key;
}

void wdog_lock(WDOG_Type *wdog)
{
    wdog->LOCK = 0u;
}

bool wdog_is_locked(const WDOG_Type *wdog)
{
    return (wdog->LOCK & WDOG_LOCK_LOCKED_Msk) != 0u;
}

void wdog_seal(WDOG_Type *wdog)
{
    wdog->LOCK = seal_key;
}

bool wdog_is_sealed(const WDOG_Type *wdog)
{
    return (wdog->LOCK & WDOG_LOCK_SEALED_Msk) != 0u;
}
