// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperxml.h"
#include "keeper/model/onetimecode.h"
#include "tests/fuzz/fuzztarget.h"

/// Any XML, and what it has as one-time secrets.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = asBytes(data, size).toByteArray();
    KeeperXmlImport::isLikely(bytes);
    KeeperXmlImport import(bytes, {});
    std::size_t steps = 0;
    while (import.step())
        require(++steps <= size + 16, "reading comes to an end");
    require(import.refusal().isEmpty() || import.lineCount() == 0, "of a refused file nothing is taken");
    for (std::size_t i = 0; i < import.lineCount(); ++i)
        require(import.mayBeTaken(i) || !import.isChosen(i), "only what was read is taken");
    for (const KeeperEntry &entry : import.result()) {
        require(!entry.text(KeeperField::Title).isEmpty(), "every entry has a title");
        const auto secret = OneTimeSecret::read(entry.text(KeeperField::OneTimeSecret));
        require(!secret || secret->code(1'800'000'000).size() == secret->digits, "codes have their digits");
        require(!secret || OneTimeSecret::read(secret->text()), "a secret is read again");
    }
    return 0;
}
