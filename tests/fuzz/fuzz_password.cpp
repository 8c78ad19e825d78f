// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "shell/access/passwordcheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const PasswordCheck::Content content = PasswordCheck::parsed(asBytes(data, size));
    const bool isSet = content.state == PasswordCheck::State::Set;
    require(isSet == !content.verifier.isEmpty(), "a password is set when there is one");
    for (int area = 0; area < ProtectedAreas::count; ++area) {
        const bool isProtected = content.areas.isProtected(area);
        require(content.state != PasswordCheck::State::NotSet || !isProtected, "no mark without a password");
        require(content.state != PasswordCheck::State::Damaged || isProtected, "a damaged file guards all");
    }
    return 0;
}
