/* Registers of Tarvo_ORIX_M1. Offsets are in bytes from an instance's base address. */
#ifndef TARVO_ORIX_M1_REGISTERS_H
#define TARVO_ORIX_M1_REGISTERS_H

#endif
