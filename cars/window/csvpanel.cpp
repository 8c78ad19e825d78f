// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/csvpanel.h"

#include "cars/model/carcsvimport.h"
#include "cars/model/csvlines.h"
#include "cars/model/presentreading.h"
#include "cars/window/opencar.h"
#include "shell/program/program.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

CsvPanel::CsvPanel(const CarDesk &desk)
    : ImportPreview({.name = u"carImport"_s, .take = u"&Take These Rows"_s, .hasColumns = true})
    , m_desk(desk)
{}

bool CsvPanel::open(const QString &path, CarPart part)
{
    const auto bytes = contents(path);
    if (!bytes)
        return false;
    auto import = std::make_unique<CarCsvImport>(
        *bytes, part, m_desk.car.record(), m_desk.program.state.dateStyle, m_desk.program.clock.today());
    m_part = part;
    m_import = import.get();
    read(std::move(import));
    return true;
}

QString CsvPanel::hint() const
{
    return m_import->isReadable() ? CsvLines::whatIsTaken(m_part, m_import->notUsed())
                                  : CsvLines::noColumns();
}

QString CsvPanel::whyReadOnly() const
{
    return m_desk.car.whyLocked(m_part);
}

/// The description.
int CsvPanel::wideColumn() const
{
    return m_part == CarPart::Fuel ? -1 : 3;
}

void CsvPanel::take()
{
    const QString line = CsvLines::broughtIn(m_part, m_import->chosenCount());
    CarRecord wanted = m_import->result();
    for (qsizetype row = m_desk.car.record().fuel.size(); row < wanted.fuel.size(); ++row) {
        if (m_desk.car.whyLocked(CarPart::Sheet).isEmpty())
            PresentReading::follow(wanted, wanted.fuel[row].current);
    }
    leave();
    m_desk.car.change(line, wanted);
    emit taken(line);
}
