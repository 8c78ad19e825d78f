// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeper.h"
#include "keeper/model/keepercsv.h"
#include "keeper/model/keeperexport.h"
#include "storage/changeset.h"
#include "storage/sealing/freememory.h"

#include <cstdio>
#include <iostream>
#include <string>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

/// keeperprobe make|lock|kill|work|show FOLDER: a program to look into from outside. "make" sets up a keeper
/// with the secret of its standard input; the others open it, do their work, say "ready" and wait for the end
/// of the input: with the keeper locked again, or open without an entry shown, or locked after all entries
/// went out and came in again as a file, or with one shown. keeperprobe change|check FOLDER: "change" does
/// all that a keeper writes, wherever it is interrupted; "check" is the next start, which fails unless all is
/// there, as it was or as it should have become.
namespace {

const QString master = u"A master password of the probe"_s;
const QString nextMaster = u"The next master password of the probe"_s;
constexpr int others = 40;

bool run(KeyDerivation &derivation)
{
    return derivation.run();
}

KeeperEntry entryOf(const QString &title, const QString &secret)
{
    KeeperEntry entry;
    entry.setKind(EntryKind::LogIn);
    entry.setText(KeeperField::Title, title);
    entry.setText(KeeperField::Password, secret);
    entry.setText(KeeperField::OneTimeSecret, secret);
    entry.fields.append({KeeperField::Own, true, u"PIN"_s, secret});
    entry.fields.append({KeeperField::Notes, true, {}, secret});
    return entry;
}

/// Made, changed, put into the trash and back, drafted, sealed with a new password: every way to the disk.
bool make(Keeper &keeper, const QString &secret)
{
    KeyDerivation password = keeper.newKey(master);
    KeyDerivation code = keeper.newKey(u"a code"_s);
    if (!run(password) || !run(code) || !keeper.create(password, code))
        return false;
    KeeperEntry planted = entryOf(u"Planted"_s, secret);
    bool isDone = keeper.save(planted);
    QList<KeeperEntry> more;
    for (int i = 0; i < others; ++i)
        more.append(entryOf(u"Entry %1"_s.arg(i), secret + QString::number(i)));
    isDone = isDone && keeper.saveAll(more) && keeper.saveDraft(planted) && keeper.save(planted);
    isDone = isDone && keeper.setTrashed({planted.id}, true) && keeper.setTrashed({planted.id}, false);
    KeyDerivation again = keeper.newKey(master);
    return isDone && run(again) && keeper.changeMaster(again);
}

bool open(Keeper &keeper, const QString &password = master)
{
    std::optional<KeeperOpening> opening = keeper.opening(password, KeySlots::Password);
    return opening && opening->run() && keeper.unlock(std::move(*opening));
}

QByteArray planted(const Keeper &keeper)
{
    const QList<int> places = keeper.search(u"planted"_s);
    return places.size() == 1 ? keeper.summary(places.first()).id : QByteArray();
}

/// Each step whether the one before it was refused or not, as a user goes on.
void change(Keeper &keeper)
{
    const QByteArray id = planted(keeper);
    for (int version = 1; version <= 7; ++version) {
        KeeperEntry entry = keeper.entry(id).value_or(KeeperEntry());
        entry.setText(KeeperField::UserName, u"user %1"_s.arg(version));
        entry.setText(KeeperField::Notes, QString(version == 7 ? 40'000 : 0, u'n')); // the file grows
        std::ignore = keeper.save(entry);
    }
    std::ignore = keeper.setTrashed({id}, true);
    std::ignore = keeper.setTrashed({id}, false);
    KeeperEntry going = entryOf(u"Going"_s, u"gone"_s);
    std::ignore = keeper.save(going) && keeper.setTrashed({going.id}, true);
    std::ignore = keeper.removeForGood({going.id});
    std::ignore = keeper.saveDraft(going);
    std::ignore = keeper.dropDraft();
    KeyDerivation password = keeper.newKey(nextMaster);
    KeyDerivation code = keeper.newKey(u"another code"_s);
    std::ignore = run(password) && keeper.changeMaster(password);
    std::ignore = run(code) && keeper.changeCode(code);
}

bool isAllThere(Keeper &keeper, const DataFolder &folder)
{
    if (!ChangeSet::recover(folder) || (!open(keeper) && !open(keeper, nextMaster)))
        return false;
    const QByteArray id = planted(keeper);
    const std::optional<KeeperEntry> entry = keeper.entry(id);
    const qsizetype wrong = keeper.search(u"going"_s).size();
    if (!entry || !keeper.damagedPlaces().isEmpty() || keeper.versions(id).size() > 5 ||
        keeper.count() != others + 1 + wrong || wrong > 1)
        return false;
    const QString secret = entry->text(KeeperField::Password);
    for (const KeeperSummary &each : keeper.entries()) {
        const std::optional<KeeperEntry> whole = keeper.entry(each.id);
        if (!whole || (each.title != u"Going"_s && !whole->text(KeeperField::Password).startsWith(secret)))
            return false;
    }
    KeeperEntry again = *entry;
    return !secret.isEmpty() && keeper.setTrashed({id}, false) && keeper.save(again);
}

bool exchange(Keeper &keeper)
{
    QList<KeeperEntry> entries;
    for (const KeeperSummary &each : keeper.entries())
        entries.append(keeper.entry(each.id).value_or(KeeperEntry()));
    KeeperCsvImport file(KeeperExport::csv(entries), {}, DateStyle::Usa);
    while (file.step()) {}
    QList<KeeperEntry> again = file.result();
    return again.size() == entries.size() && keeper.saveAll(again);
}

void waitForTheEnd()
{
    std::puts("ready");
    std::fflush(stdout);
    while (std::getchar() != EOF) {}
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return EXIT_FAILURE;
    const std::string way = argv[1];
    const DataFolder folder(QString::fromLocal8Bit(argv[2]));
    const SystemClock clock;
    Keeper keeper(folder, clock, PasswordCost::minimum());
    if (way == "make") {
        std::string secret;
        std::getline(std::cin, secret);
        return make(keeper, QString::fromStdString(secret)) ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    if (way == "check")
        return isAllThere(keeper, folder) ? EXIT_SUCCESS : EXIT_FAILURE;
    if (way == "change") {
        if (!open(keeper))
            return EXIT_FAILURE;
        change(keeper);
        return EXIT_SUCCESS;
    }
    if (!open(keeper) || keeper.search(u"planted"_s).size() != 1)
        return EXIT_FAILURE;
    // The list and the check-up look at every entry without its secrets.
    std::optional<KeeperEntry> shown;
    for (const KeeperSummary &entry : keeper.entries()) {
        if (way == "show" && entry.title == u"Planted"_s)
            shown = keeper.entry(entry.id);
    }
    if (way == "work" && !exchange(keeper))
        return EXIT_FAILURE;
    if (way == "lock" || way == "work")
        keeper.lock();
    if (way == "work")
        FreeMemory::wipe();
    waitForTheEnd();
    return EXIT_SUCCESS;
}
