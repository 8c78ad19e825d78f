// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "todo/model/activefile.h"
#include "todo/model/comingback.h"
#include "todo/model/repeatwords.h"
#include "todo/model/todoactions.h"
#include "todo/model/tododifference.h"
#include "todo/model/typeddate.h"

namespace {

const QDate today(2026, 11, 22);

void tryTexts(const ToDoItem &item)
{
    require(item.due.isNull() || !item.offset, "an item has a date or the days of one");
    if (const auto repeat = Repeat::ofFile(item.repeat)) {
        require(Repeat::ofFile(repeat->toFile()) == repeat, "a rule comes back");
        const QDate next = repeat->next(item.due, item.actual, today);
        require(!next.isValid() || next > (repeat->isAfter && item.actual.isValid() ? item.actual : today),
                "nothing comes back in the past");
        require(repeat->missed(item.due, today) >= 0, "what was missed is counted");
        require(RepeatWords::read(RepeatWords::of(*repeat, DateStyle::Usa), today) == repeat,
                "a rule is read as it is said");
    }
    if (const auto repeat = RepeatWords::read(item.text, today))
        require(Repeat::ofFile(repeat->toFile()) == repeat, "what is typed fits into a file");
    if (const auto date = TypedDate::read(item.text, DateStyle::Other, today))
        require(date->isValid(), "what is typed is a date");
}

/// Ticks every item, takes that back and makes it again.
void tryTicks(const ToDoSheet &sheet)
{
    std::vector<int> ids;
    for (int row = 0; row < sheet.rowCount(); ++row)
        ids.push_back(sheet.idOf(row));
    const ToDoSheet ticked = ToDoActions::tick(sheet, ids, today, today).sheet;
    const ToDoDifference difference = ToDoDifference::between(sheet, ticked);
    ToDoSheet held = ticked;
    require(difference.revert(held) && held == sheet, "a tick is taken back");
    require(difference.apply(held) && held == ticked, "a tick is made again");
    const ComingBack comingBack(ticked, today);
    for (int row = 0; row < ticked.rowCount(); ++row)
        require(!comingBack.isLater(row) || ticked.isOpen(row), "what comes later is to be done");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = asBytes(data, size).toByteArray();
    const ToDoSheet sheet = ToDoSheet::fromFile(bytes);
    for (int row = 0; row < sheet.rowCount(); ++row) {
        require(sheet.rowOf(sheet.idOf(row)) == row, "an id is that of one item");
        require(sheet.list(sheet.listOf(row)) != nullptr, "an item is in a list");
        tryTexts(sheet.item(row));
    }
    const QByteArray file = sheet.toFile("a", "b");
    const ToDoSheet again = ToDoSheet::fromFile(file);
    require(again == sheet && again.toFile("a", "b") == file, "the lists come back");
    if (sheet.rowCount() < 200)
        tryTicks(sheet);

    ToDoSheet first = ActiveFile::firstSheet(bytes, bytes, DateStyle::Usa, today);
    require(!first.lists().empty(), "there is a list");
    require(ActiveFile::takeIn(first, ActiveFile::make(first), DateStyle::Usa, today) == 0,
            "what is there is not taken in again");
    return 0;
}
