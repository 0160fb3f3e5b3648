#pragma once

/// \file
/// Positions in the table of virtual operations.
///
/// Host and module may come from different compilers, so an operation of a slot interface is found by its position
/// alone, counted from 0. The slot interfaces therefore derive in single lines, have no virtual destructor (which
/// takes one entry with one ABI and two with another) but a protected plain one, and overload no virtual name within
/// a class (compilers order overloads differently).
///
/// The positions that an interface does not name are reserved operations with empty bodies, so that a host implements
/// only what is named. The macros below declare them; their arguments are the positions.

/// One position.
#define LOCALCONFIG_RESERVED_SLOT(n)                                                                                   \
    virtual void ReservedSlot##n()                                                                                     \
    {}
/// Two positions.
#define LOCALCONFIG_RESERVED_SLOTS_2(a, b)                                                                             \
    LOCALCONFIG_RESERVED_SLOT(a)                                                                                       \
    LOCALCONFIG_RESERVED_SLOT(b)
/// Four positions.
#define LOCALCONFIG_RESERVED_SLOTS_4(a, b, c, d)                                                                       \
    LOCALCONFIG_RESERVED_SLOTS_2(a, b)                                                                                 \
    LOCALCONFIG_RESERVED_SLOTS_2(c, d)
/// Five positions.
#define LOCALCONFIG_RESERVED_SLOTS_5(a, b, c, d, e)                                                                    \
    LOCALCONFIG_RESERVED_SLOTS_4(a, b, c, d)                                                                           \
    LOCALCONFIG_RESERVED_SLOT(e)

/// Ten positions: \a tens 1 declares 10 to 19.
#define LOCALCONFIG_RESERVED_SLOTS_10(tens)                                                                            \
    LOCALCONFIG_RESERVED_SLOTS_5(tens##0, tens##1, tens##2, tens##3, tens##4)                                          \
    LOCALCONFIG_RESERVED_SLOTS_5(tens##5, tens##6, tens##7, tens##8, tens##9)
