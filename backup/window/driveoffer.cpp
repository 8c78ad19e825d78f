// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/driveoffer.h"

#include "backup/model/backupnews.h"
#include "shell/controls/activitybar.h"
#include "shell/core/threadedstep.h"
#include "shell/program/backupplace.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QTimer>

#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int lookMilliseconds = 5000;
} // namespace

DriveOffer::DriveOffer(Program &program, std::function<QList<Drive>()> drives, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_drives(std::move(drives))
    , m_step(new ThreadedStep(this))
    , m_timer(new QTimer(this))
{
    m_timer->setInterval(lookMilliseconds);
    m_timer->setTimerType(Qt::VeryCoarseTimer);
    connect(m_timer, &QTimer::timeout, this, &DriveOffer::look);
}

DriveOffer::~DriveOffer() = default;

void DriveOffer::begin()
{
    m_timer->start();
    look();
}

void DriveOffer::look()
{
    if (m_step->isRunning())
        return;
    auto names = std::make_shared<QStringList>();
    m_step->start(
        [names, drives = m_drives] {
            for (const Drive &drive : drives())
                names->append(drive.name);
        },
        [this, names] { take(*names); });
}

void DriveOffer::take(const QStringList &names)
{
    const QStringList before = std::exchange(m_known, names);
    if (before == names || m_program.functions.isOpen(Function::Backup))
        return;
    const BackupNews news = BackupNews::of(m_program.folder, m_program.settings);
    const bool hasCome = names.contains(news.drive) && !before.contains(news.drive);
    if (!hasCome || !news.isDue(m_program.clock.today()))
        return;
    const QWidget *window = QApplication::activeWindow();
    auto *bar = window ? window->findChild<ActivityBar *>() : nullptr;
    if (!bar) {
        m_known.removeAll(news.drive); // said as soon as somebody is there
        return;
    }
    bar->say(news.drive + u" is plugged in. "_s + news.line(m_program.clock.today()));
    bar->offerWay(u"Back Up"_s, [program = &m_program] {
        emit program->changes.placeRequested(Function::Backup, BackupPlace::of(BackupPlace::Side::BackUp));
    });
}
