// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/menunews.h"

#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int afternoon = 12; // hours
constexpr int evening = 18;

QString greeting(int hour)
{
    if (hour < afternoon)
        return u"Good morning."_s;
    return hour < evening ? u"Good afternoon."_s : u"Good evening."_s;
}

QString wish(QDate today)
{
    return u"Have a pleasant "_s + QLocale::c().dayName(today.dayOfWeek()) + u'.';
}

} // namespace

void MenuNews::refresh()
{
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = m_program.functions.entry(face.function);
        if (!entry)
            continue;
        const Reading reading = readingOf(face, *entry);
        const auto known = m_known.find(face.function);
        if (known != m_known.end() && known->second.reading == reading)
            continue;
        std::optional<LiveLine> line;
        if (!reading.guarded.isEmpty())
            line = LiveLine{reading.guarded, LiveLine::Plain, {}};
        else if (entry->liveLine)
            line = entry->liveLine(m_program, reading.day);
        m_known[face.function] = {reading, line};
    }
}

MenuNews::Reading MenuNews::readingOf(const FunctionFace &face, const FunctionEntry &entry) const
{
    const ProgramState &state = m_program.state;
    const QString guarded =
        face.isGuarded(state.protectedAreas) ? face.guardedText(state.protectedAreas) : QString();
    const QDateTime now = m_program.clock.now();
    const int minute = entry.followsClock ? now.time().hour() * 60 + now.time().minute() : 0;
    return {entry.liveStamp(m_program), now.date(), minute, state.dateStyle, guarded};
}

std::optional<LiveLine> MenuNews::line(Function function) const
{
    const auto known = m_known.find(function);
    return known == m_known.end() ? std::nullopt : known->second.line;
}

QString MenuNews::sentence() const
{
    QList<LiveLine> lines;
    // Of equally urgent sentences the first is told: today's appointments before what the days ahead bring.
    for (const FunctionFace &face : FunctionFaces::cards())
        if (const std::optional<LiveLine> news = line(face.function))
            lines.insert(face.function == Function::Planner ? 0 : lines.size(), *news);
    return sentence(m_program.clock.now(), lines);
}

QString MenuNews::sentence(const QDateTime &now, const QList<LiveLine> &lines)
{
    const LiveLine *told = nullptr;
    for (const LiveLine &line : lines)
        if (!line.sentence.isEmpty() && (!told || line.urgency > told->urgency))
            told = &line;
    return greeting(now.time().hour()) + u' ' + (told ? told->sentence : wish(now.date()));
}
