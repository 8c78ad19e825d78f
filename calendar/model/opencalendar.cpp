// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/opencalendar.h"

#include "calendar/model/calendarfile.h"
#include "calendar/model/calendarfiles.h"
#include "calendar/model/lines.h"
#include "shell/core/clock.h"
#include "shell/core/framelines.h"
#include "storage/saving.h"

#include <utility>

namespace {

constexpr int saveAfter = 1000;

QString whyLockedOf(const std::optional<QByteArray> &bytes, int number)
{
    if (!bytes)
        return CalendarLines::unreadableFile(CalendarFiles::name(number));
    switch (CalendarFile::formOf(*bytes)) {
    case TabLine::Foreign:
        return CalendarLines::foreignFile(CalendarFiles::name(number));
    case TabLine::Later:
        return CalendarLines::laterVersion();
    case TabLine::Empty:
    case TabLine::Known:
        break;
    }
    return {};
}

} // namespace

OpenCalendar::OpenCalendar(const DataFolder &folder, const Clock &clock, int number, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_clock(clock)
    , m_number(number)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(saveAfter);
    connect(&m_soon, &QTimer::timeout, this, [this] { static_cast<void>(save()); });
}

QString OpenCalendar::whyLocked() const
{
    return m_folder.isReadOnly() ? m_folder.whyReadOnly() : m_whyLocked;
}

QStringList OpenCalendar::fileNames() const
{
    return {CalendarFiles::name(m_number)};
}

void OpenCalendar::load()
{
    const std::optional<QByteArray> bytes = CalendarFiles::read(m_folder, m_number);
    m_soon.stop();
    m_bytes = bytes.value_or(QByteArray());
    m_whyLocked = whyLockedOf(bytes, m_number);
    m_calendar = CalendarFile::read(m_bytes);
    if (!m_calendar.from.isValid())
        m_calendar.from = QDate(m_clock.today().year(), 1, 1);
    m_beforeDraft.reset();
    m_isSaved = true;
    emit fileTouched();
    emit changed();
}

bool OpenCalendar::change(const QString &title, const WallCalendar &after)
{
    if (!mayChange())
        return false;
    const WallCalendar before = std::exchange(m_beforeDraft, {}).value_or(m_calendar);
    if (after != m_calendar)
        hold(after);
    push(title, before);
    return true;
}

bool OpenCalendar::draft(const WallCalendar &after)
{
    if (!mayChange())
        return false;
    if (after == m_calendar)
        return true;
    if (!m_beforeDraft)
        m_beforeDraft = m_calendar;
    hold(after);
    return true;
}

void OpenCalendar::endDraft(const QString &title)
{
    if (m_beforeDraft)
        push(title, *std::exchange(m_beforeDraft, {}));
}

bool OpenCalendar::mayChange()
{
    const QString why = whyLocked();
    if (!why.isEmpty())
        emit said(why);
    return why.isEmpty();
}

void OpenCalendar::hold(const WallCalendar &calendar)
{
    m_calendar = calendar;
    m_isSaved = false;
    if (!m_soon.isActive()) // whoever types on and on is saved all the same
        m_soon.start();
    emit changed();
}

void OpenCalendar::push(const QString &title, const WallCalendar &before)
{
    if (before == m_calendar)
        return;
    const WallCalendar after = m_calendar;
    emit edited({title, [=, this] { return exchange(after, before); },
                 [=, this] { return exchange(before, after); }, UndoStep::Typed});
}

ChangeResult OpenCalendar::exchange(const WallCalendar &shown, const WallCalendar &wanted)
{
    if (m_calendar != shown)
        return ChangeResult::Outdated;
    hold(wanted);
    return ChangeResult::Done;
}

bool OpenCalendar::save()
{
    m_soon.stop();
    if (m_isSaved)
        return true;
    const QByteArray bytes = CalendarFile::write(m_calendar, m_bytes);
    if (!keepOthers() ||
        (bytes != m_bytes && !Saving::replaceFile(m_folder, CalendarFiles::name(m_number), bytes))) {
        emit said(FrameLines::refused(m_folder, CalendarLines::notSaved()));
        return false;
    }
    m_bytes = bytes;
    m_isSaved = true;
    emit fileTouched();
    return true;
}

bool OpenCalendar::keepOthers()
{
    const std::optional<QByteArray> there = CalendarFiles::read(m_folder, m_number);
    if (there && (there->isEmpty() || *there == m_bytes))
        return true;
    const int number = there ? CalendarFiles::create(m_folder, *there) : 0;
    if (number == 0)
        return false;
    m_bytes = *there;
    emit said(CalendarLines::keptBeside(m_calendar.title));
    emit keptBeside(number);
    return true;
}
