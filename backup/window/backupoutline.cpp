// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/backupoutline.h"

#include "backup/model/setfolder.h"
#include "backup/window/householdsources.h"
#include "shell/core/threadedstep.h"
#include "shell/program/program.h"

#include <algorithm>
#include <memory>
#include <utility>

BackupOutline::BackupOutline(const Program &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_step(new ThreadedStep(this))
{}

BackupOutline::~BackupOutline() = default;

void BackupOutline::look()
{
    const DataFolder folder = m_program.folder;
    const QList<BackupSource> sources = HouseholdSources::all(m_program);
    const QByteArray desk = HouseholdSources::desk(m_program);
    auto found = std::make_shared<Holdings>();
    m_step->start([=] { *found = Holdings::of(folder, sources, desk); },
                  [this, found] {
                      m_holdings = std::move(*found);
                      m_isKnown = true;
                      emit known();
                  });
}

std::vector<HoldingsModel::Row> BackupOutline::rows() const
{
    std::vector<HoldingsModel::Row> rows;
    for (const BackupItem &item : m_holdings.items) {
        auto row = std::ranges::find(rows, item.function, &HoldingsModel::Row::key);
        if (row == rows.end()) {
            HoldingsModel::Row fresh;
            fresh.key = item.function;
            fresh.title = HouseholdSources::title(item.function);
            fresh.copy = HouseholdSources::words(HouseholdSources::copyOf(m_program, item.function));
            row = rows.insert(rows.end(), fresh);
        }
        (SetFolder::isPicture(item.name) ? row->pictures : row->files) += 1;
        row->bytes += item.size;
    }
    return rows;
}

void BackupOutline::plan(const QStringList &keys, const QString &folder, std::optional<DiskRoom> room,
                         BackupOutlook::Form form)
{
    const int wanted = ++m_wanted;
    m_outlook.reset();
    if (folder.isEmpty() || !m_isKnown) {
        emit planned();
        return;
    }
    auto found = std::make_shared<BackupOutlook>();
    const QList<BackupItem> items = m_holdings.only(keys).items;
    const DataFolder household = m_program.folder;
    m_step->start([=] { *found = BackupOutlook::of(items, household, folder, room, form); },
                  [this, found, wanted] {
                      if (wanted != m_wanted)
                          return; // another one is wanted by now
                      m_outlook = std::move(*found);
                      emit planned();
                  });
}
