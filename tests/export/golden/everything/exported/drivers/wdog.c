#include "wdog.h"

static const uint32_t kick_key = 0x4B49434Bu;
static const uint32_t unlock_key = 0x554E4C4Bu;

bool wdog_start(WDOG_Type *wdog, uint32_t cycles, bool reset_allowed)
{
    if (cycles == 0u)
        return false;
    wdog_unlock(wdog);
    wdog->CTRL = 0u;
    wdog->LOAD = cycles - 1u;
    wdog_kick(wdog); /* takes a pending interrupt back before the new period begins */
    wdog->CTRL = WDOG_CTRL_EN_Msk | (reset_allowed ? WDOG_CTRL_RSTEN_Msk : 0u);
    wdog_lock(wdog);
    return true;
}

void wdog_stop(WDOG_Type *wdog)
{
    wdog_unlock(wdog);
    wdog->CTRL = 0u;
    wdog_kick(wdog);
    wdog_lock(wdog);
}

void wdog_kick(WDOG_Type *wdog)
{
    wdog->KICK = kick_key;
}

bool wdog_is_pending(const WDOG_Type *wdog)
{
    return (wdog->STATUS & WDOG_STATUS_PENDING_Msk) != 0u;
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
