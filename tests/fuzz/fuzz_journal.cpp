// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "journal/model/foldedyear.h"
#include "journal/model/journalfold.h"
#include "journal/model/journalform.h"
#include "journal/model/journalhit.h"
#include "journal/model/journalimport.h"
#include "journal/model/journalwords.h"
#include "storage/foldedtext.h"
#include "storage/utf8text.h"

#include <QTemporaryDir>

namespace {

constexpr int year = 2026;

class StandingClock final : public Clock
{
public:
    QDateTime now() const override { return QDateTime(QDate(year, 11, 23), QTime(8, 50)); }
};

void tryEntry(const JournalBlock &block)
{
    const JournalEntry entry = JournalForm::entry(block);
    const JournalBlock again = JournalForm::block(entry, block.kind);
    require(JournalForm::entry(again) == entry, "an entry comes back");
    const QByteArray file = JournalForm::file({again});
    const JournalBlocks blocks = JournalForm::blocks(file, year);
    require(blocks == JournalBlocks{again}, "no line of an entry is mistaken for another one");
    require(JournalForm::joined(entry, {.date = entry.date}) == entry, "nothing is added by nothing");
    require(JournalWords::count(entry.text) >= 0, "words are counted");
}

/// What stands in an entry is found there, and marked where it is shown.
void trySearch(const JournalBlocks &blocks, const QString &text)
{
    FoldedYear folded(blocks);
    const JournalQuestion question(text);
    folded.ask(question, false);
    const std::size_t hits = folded.count();
    folded.ask(question, question.isNarrowerThan(question));
    require(question.isEmpty() || folded.count() == hits, "asked again, the same is found");
    for (std::size_t i = 0; i < hits; ++i) {
        const JournalHit hit = JournalHit::of({.date = folded.hit(i), .text = text}, question);
        for (const auto &[at, length] : hit.marks)
            require(at >= 0 && length > 0 && at + length <= hit.context.size(), "a mark is in its line");
    }
    const JournalFold::Line line = JournalFold::line(text);
    require(line.folded == JournalFold::of(text) || QString::fromUtf8(text.toUtf8()) != text,
            "a line folds in one way");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = asBytes(data, size).toByteArray();
    const JournalBlocks blocks = JournalForm::blocks(bytes, year);
    for (const JournalBlock &block : blocks) {
        if (block.kind != JournalBlock::Loose)
            tryEntry(block);
    }
    const QByteArray file = JournalForm::file(blocks);
    require(JournalForm::file(JournalForm::blocks(file, year)) == file, "a year comes back");
    const QString text = Utf8Text::decode(bytes);
    if (size < 5000)
        trySearch(blocks, text);

    static const QTemporaryDir folder;
    static const DataFolder place(folder.path());
    static const StandingClock clock;
    Journal journal(place, clock);
    JournalImport import(bytes, journal);
    while (import.step()) {}
    for (std::size_t line = 0; line < import.lineCount(); ++line)
        require(!import.whatBecomesOf(line).isEmpty(), "each line is told of");
    const int chosen = import.chosenCount();
    require(import.take().size() <= chosen && (chosen == 0) == !journal.isModified(),
            "what is ticked is taken");
    return 0;
}
