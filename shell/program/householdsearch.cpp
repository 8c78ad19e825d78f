// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/householdsearch.h"

#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

HouseholdSearch::HouseholdSearch(Program &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_reading(new SlicedWork(this))
{
    connect(m_reading, &SlicedWork::progressed, this, &HouseholdSearch::progressed);
    connect(m_reading, &SlicedWork::finished, this, [this] {
        const bool isNews = hasNews();
        m_isComplete = true;
        if (isNews)
            emit progressed();
    });
}

void HouseholdSearch::refresh()
{
    if (m_reading->isRunning())
        return;
    m_hasRead = false;
    m_reading->start([this] {
        const bool isMore = readNext();
        m_hasRead = m_hasRead || isMore;
        return isMore;
    });
}

/// Null where there is nothing to find or the password guards any way into the function, of which then
/// nothing stays in memory.
SearchSource *HouseholdSearch::source(Function function) const
{
    if (!FunctionFaces::of(function).isGuarded(m_program.state.protectedAreas))
        return m_program.functions.searchSource(function, m_program);
    m_program.functions.forgetSearch(function);
    return nullptr;
}

bool HouseholdSearch::readNext() const
{
    for (const FunctionFace &face : FunctionFaces::cards()) {
        if (SearchSource *found = source(face.function); found && found->prepare())
            return true;
    }
    return false;
}

QList<SearchGroup> HouseholdSearch::find(const QString &text, int most) const
{
    QList<SearchGroup> groups;
    if (text.trimmed().isEmpty())
        return groups;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const SearchSource *found = source(face.function);
        QList<SearchHit> hits = found ? found->matches(text, most) : QList<SearchHit>();
        if (!hits.isEmpty())
            groups.append({face.function, std::move(hits)});
    }
    return groups;
}

QStringList HouseholdSearch::guarded() const
{
    QStringList titles;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = m_program.functions.entry(face.function);
        if (entry && entry->search && face.isGuarded(m_program.state.protectedAreas))
            titles << face.titleText();
    }
    return titles;
}
