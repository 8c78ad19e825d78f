// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepercsv.h"
#include "keeper/model/keeperexport.h"
#include "tests/fuzz/fuzztarget.h"

/// Any table, into a keeper that has an entry already; the first byte moves a column.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    KeeperEntry there;
    there.id = "1";
    there.setKind(EntryKind::LogIn);
    there.setText(KeeperField::Title, QStringLiteral("Bank"));
    there.setText(KeeperField::UserName, QStringLiteral("anne"));
    there.setText(KeeperField::Password, QStringLiteral("old"));
    KeeperImport::There keeper;
    keeper.entries.append({.id = there.id,
                           .kind = EntryKind::LogIn,
                           .title = QStringLiteral("Bank"),
                           .userName = QStringLiteral("anne")});
    keeper.open = [&there](const QByteArray &) { return std::optional(there); };
    KeeperCsvImport import(asBytes(data + 1, size - 1).toByteArray(), keeper, DateStyle::Usa);
    if (data[0] % 16 < KeeperImport::ColumnCount)
        import.setPlace(data[0] % 16, data[0] / 16);
    std::size_t steps = 0;
    while (import.step())
        require(++steps <= size + 16, "reading comes to an end");
    require(import.refusal().isEmpty() || import.lineCount() == 0, "of a refused file nothing is taken");
    int last = 0;
    for (std::size_t i = 0; i < import.lineCount(); ++i) {
        require(import.lineNumber(i) > last, "lines are counted on");
        last = import.lineNumber(i);
        require(import.mayBeTaken(i) || !import.isChosen(i), "only what was read is taken");
        require(!import.whatBecomesOf(i).isEmpty(), "of each line it is told what becomes of it");
        for (const KeeperImport::Beside &row : import.beside(i))
            require(!row.caption.isNull(), "each text has a caption");
    }
    const QList<KeeperEntry> result = import.result();
    require(result.size() <= import.chosenCount(), "no entry comes from nothing");
    KeeperCsvImport again(KeeperExport::csv(result), {}, DateStyle::Usa);
    while (again.step()) {}
    require(again.refusal().isEmpty() && int(again.lineCount()) == result.size(),
            "what is exported can be read again");
    return 0;
}
