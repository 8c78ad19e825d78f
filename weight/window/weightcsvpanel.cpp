// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weightcsvpanel.h"

#include "shell/program/program.h"
#include "weight/model/weightcsv.h"
#include "weight/model/weightpaperlines.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

WeightCsvPanel::WeightCsvPanel(const Program &program)
    : ImportPreview({.name = u"weightImport"_s,
                     .take = u"&Take These Weigh-Ins"_s,
                     .filters = {u"All lines"_s, u"To be taken"_s, u"There already"_s, u"Not read"_s}})
    , m_program(program)
{}

bool WeightCsvPanel::open(const QString &path, const WeightTable &weighIns)
{
    const auto bytes = contents(path);
    if (!bytes)
        return false;
    auto import = std::make_unique<WeightCsvImport>(*bytes, weighIns, m_program.state.dateStyle,
                                                    m_program.clock.today());
    m_import = import.get();
    read(std::move(import));
    return true;
}

QString WeightCsvPanel::hint() const
{
    return m_import->isReadable() ? WeightPaperLines::whatIsTaken() : WeightPaperLines::noColumns();
}

QString WeightCsvPanel::whatBecomes() const
{
    return WeightPaperLines::whatBecomes(m_import->count(WeightCsvLine::Ready),
                                         m_import->count(WeightCsvLine::Duplicate),
                                         m_import->count(WeightCsvLine::NotRead));
}

QString WeightCsvPanel::nothingToTake() const
{
    return WeightPaperLines::nothingToTake();
}

void WeightCsvPanel::take()
{
    const WeightTable weighIns = m_import->result();
    const QString line = WeightPaperLines::broughtIn(m_import->count(WeightCsvLine::Ready));
    leave();
    emit taken(weighIns, line);
}
