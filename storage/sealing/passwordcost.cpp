// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/passwordcost.h"

#include <sodium.h>

PasswordCost PasswordCost::interactive()
{
    return {crypto_pwhash_opslimit_interactive(), crypto_pwhash_memlimit_interactive()};
}

PasswordCost PasswordCost::moderate()
{
    return {crypto_pwhash_opslimit_moderate(), crypto_pwhash_memlimit_moderate()};
}

PasswordCost PasswordCost::minimum()
{
    return {crypto_pwhash_opslimit_min(), crypto_pwhash_memlimit_min()};
}

bool PasswordCost::isBearable() const
{
    return operations >= crypto_pwhash_opslimit_min() && operations <= mostOperations &&
           memory >= crypto_pwhash_memlimit_min() && memory <= mostMemory;
}
