# shellcheck shell=bash
# What a script can get wrong on the example's board: `expect TEXT SCRIPT…` plays the lines and wants the text.
expect "line 3: read 0x00000000, expected 0x00000001 in the bits 0xffffffff" "# comment" "" "read 0x40000004 1"
expect "line 1: error response" "read 0x50003000 0"
expect "line 1: error response" "write 0x50003000 0"
expect "line 2: no error response" "read 0x40000004 0" "error 0x40000004"
expect "line 1: unknown command" "jump 0x40000004"
expect "line 1: not a number" "read 0x40000004 lots"
expect "line 1: a number is missing" "read 0x40000004"
expect "line 1: the interrupt input does not get the level" "irq 4 1 10"
expect "line 1: the non-maskable interrupt does not get the level" "nmi 1 10"
expect "line 1: read 0x00000000, expected 0x00000004" "poll 0x50004004 4 4 5"
expect "FAIL: 0 of 0 checks" "# a script that checks nothing"
