// SPDX-License-Identifier: GPL-3.0-or-later
// How long each key of a search through 10,000 entries takes until the list is painted, and how long the
// window goes without being painted while the keeper is opened.

#include "benchmarks/windowdesk.h"
#include "keeper/window/keeperwindow.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int entries = 10'000;
const QString master = u"correct horse battery staple"_s;

/// A keeper with a long list, locked.
class Desk final : public WindowDesk
{
public:
    Desk()
    {
        Keeper keeper(folder(), clock());
        KeyDerivation password = keeper.newKey(master);
        KeyDerivation code = keeper.newKey(u"code"_s);
        QList<KeeperEntry> all;
        for (int i = 0; i < entries; ++i) {
            KeeperEntry entry;
            entry.setKind(EntryKind::LogIn);
            entry.setText(KeeperField::Title, u"Power company of the town %1"_s.arg(i));
            entry.setText(KeeperField::UserName, u"anne.miller.%1@example.org"_s.arg(i));
            entry.setText(KeeperField::Password, u"kRp-39x.Vu71-%1"_s.arg(i));
            entry.setTags({u"house"_s, u"bills"_s});
            all.append(entry);
        }
        if (!password.run() || !code.run() || !keeper.create(password, code) || !keeper.saveAll(all))
            qFatal("cannot make a keeper");
    }
};

/// Types the master password and presses "Open".
void answer(const Form4 &window)
{
    window.findChild<QLineEdit *>(u"masterPassword"_s)->setText(master);
    window.findChild<QPushButton *>(u"openKeeper"_s)->click();
}

bool isOpen(Form4 &window)
{
    return window.keeper().state() == Keeper::State::Open;
}

/// Letters that are in all, then digits that leave a few.
void searchByKeys(benchmark::State &state)
{
    Desk desk;
    Form4 window(desk.program);
    window.show();
    answer(window);
    while (!isOpen(window))
        QApplication::processEvents();
    auto *box = window.findChild<QLineEdit *>(u"keeperSearch"_s);
    auto *list = window.findChild<QAbstractItemView *>(u"keeperList"_s);
    PaintWatch watch(list->viewport());
    watch.wait();
    int count = 0;
    BestTime best(state, mostToEdit);
    for ([[maybe_unused]] auto round : state) {
        const QString texts[] = {u"t"_s, u"to"_s, u"town 9"_s, u"town 98"_s};
        best.start();
        box->setText(texts[count++ % 4]);
        watch.wait();
        best.stop();
    }
}
BENCHMARK(searchByKeys)->Iterations(40)->Unit(benchmark::kMillisecond);

/// The key is derived and the entries are opened beside it: the longest time in which nothing of the window
/// could be painted, with what shows the list at the end.
void unlock(benchmark::State &state)
{
    constexpr double longest = 100;
    Desk desk;
    Form4 window(desk.program);
    window.show();
    BestTime best(state, longest);
    QElapsedTimer whole;
    double seconds = 0;
    for ([[maybe_unused]] auto round : state) {
        QApplication::processEvents();
        answer(window);
        whole.start();
        double pause = 0;
        QElapsedTimer since;
        since.start();
        while (!isOpen(window)) {
            QApplication::processEvents();
            window.repaint();
            pause = std::max(pause, double(since.nsecsElapsed()) / 1e6);
            since.start();
        }
        best.take(pause);
        seconds = double(whole.elapsed()) / 1000;
        window.lock();
    }
    state.counters["unlocked_s"] = seconds;
}
BENCHMARK(unlock)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    return runOnScreen(argc, argv);
}
