// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/functions.h"

#include "shell/program/program.h"

#include <QWidget>

#include <algorithm>

void bringToFront(QWidget &window)
{
    if (window.isMinimized())
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

FileStamp FunctionEntry::liveStamp(const Program &program) const
{
    return FileStamp::of(program.folder, moreLiveFiles ? liveFiles + moreLiveFiles(program) : liveFiles);
}

void FunctionCatalogue::add(Function function, FunctionEntry entry)
{
    m_entries.insert_or_assign(function, std::move(entry));
}

bool FunctionCatalogue::has(Function function) const
{
    return m_entries.contains(function);
}

const FunctionEntry *FunctionCatalogue::entry(Function function) const
{
    const auto found = m_entries.find(function);
    return found == m_entries.end() ? nullptr : &found->second;
}

QWidget *FunctionCatalogue::open(Function function, Program &program)
{
    const FunctionEntry *found = entry(function);
    if (!found || !found->open)
        return nullptr;
    QPointer<QWidget> &window = m_windows[function];
    // A closed window may wait for its deletion: it is not there any more.
    if (!window || !window->isVisible())
        window = found->open(program);
    if (!window)
        return nullptr;
    bringToFront(*window);
    return window;
}

QWidget *FunctionCatalogue::open(Function function, Program &program, const Place &place)
{
    QWidget *window = open(function, program);
    const FunctionEntry *found = entry(function);
    if (window && found->show && !place.isNone())
        found->show(*window, place);
    return window;
}

bool FunctionCatalogue::isOpen(Function function) const
{
    const auto found = m_windows.find(function);
    return found != m_windows.end() && found->second && found->second->isVisible();
}

QWidget *FunctionCatalogue::window(Function function) const
{
    return isOpen(function) ? m_windows.at(function).data() : nullptr;
}

void FunctionCatalogue::join(Function function, QWidget &window)
{
    std::erase_if(m_joined, [](const auto &joined) { return !joined.second; });
    m_joined.emplace_back(function, &window);
}

std::optional<Function> FunctionCatalogue::functionOf(const QWidget &window) const
{
    const auto isIt = [&window](const auto &known) { return known.second == &window; };
    if (const auto own = std::ranges::find_if(m_windows, isIt); own != m_windows.end())
        return own->first;
    const auto joined = std::ranges::find_if(m_joined, isIt);
    return joined == m_joined.end() ? std::nullopt : std::optional(joined->first);
}

SearchSource *FunctionCatalogue::searchSource(Function function, const Program &program)
{
    const FunctionEntry *found = entry(function);
    if (!found || !found->search)
        return nullptr;
    std::unique_ptr<SearchSource> &source = m_sources[function];
    if (!source)
        source = found->search(program);
    return source.get();
}

void FunctionCatalogue::forgetSearch(Function function)
{
    m_sources.erase(function);
}

QList<QWidget *> FunctionCatalogue::openWindows() const
{
    QList<QWidget *> open;
    for (const auto &[function, window] : m_windows)
        if (window && window->isVisible())
            open.append(window);
    return open;
}
