// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeper.h"

#include <cstdio>
#include <iostream>
#include <string>
#include <utility>

using namespace Qt::Literals::StringLiterals;

/// keeperprobe make|lock|kill|show FOLDER: a program to look into from outside. "make" sets up a keeper with
/// the secret of its standard input; the others open it, do their work, say "ready" and wait for the end of
/// the input: with the keeper locked again, or open without an entry shown, or with one shown.
namespace {

const QString master = u"A master password of the probe"_s;
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

bool open(Keeper &keeper)
{
    std::optional<KeeperOpening> opening = keeper.opening(master, KeySlots::Password);
    return opening && opening->run() && keeper.unlock(std::move(*opening));
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
    if (!open(keeper) || keeper.search(u"planted"_s).size() != 1)
        return EXIT_FAILURE;
    // The list and the check-up look at every entry without its secrets.
    std::optional<KeeperEntry> shown;
    for (const KeeperSummary &entry : keeper.entries()) {
        if (way == "show" && entry.title == u"Planted"_s)
            shown = keeper.entry(entry.id);
    }
    if (way == "lock")
        keeper.lock();
    waitForTheEnd();
    return EXIT_SUCCESS;
}
