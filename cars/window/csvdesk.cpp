// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/csvdesk.h"

#include "cars/model/carcsv.h"
#include "cars/model/carrows.h"
#include "cars/model/csvlines.h"
#include "cars/window/csvpanel.h"
#include "cars/window/logview.h"
#include "cars/window/opencar.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

CsvDesk::CsvDesk(const CarDesk &desk, std::function<LogView *()> shown, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_shown(std::move(shown))
    , m_files(desk.program, desk.window, u"Windows/AutoMaint/csvFolder"_s)
{}

void CsvDesk::addCommands(QMenu *utilities)
{
    Commands &all = m_desk.commands;
    all.add(
        utilities, u"mUExcel"_s, u"&Export to Excel/Spreadsheet..."_s, [this] { exportRows(); },
        [this] { return whyNoExport(); });
    all.writing(all.add(
        utilities, u"mUBringIn"_s, u"Bring &In a File..."_s, [this] { importRows(); },
        [this] { return whyNoImport(); }));
    connect(utilities, &QMenu::aboutToShow, &all, &Commands::refresh);
}

QString CsvDesk::whyNoExport() const
{
    const LogView *view = m_shown();
    if (!view)
        return {}; // it says then where there are rows
    return CarRows::count(m_desk.car.record(), view->part()) > 0 ? QString()
                                                                 : CsvLines::nothingToExport(view->part());
}

QString CsvDesk::whyNoImport() const
{
    const LogView *view = m_shown();
    return view ? m_desk.car.whyLocked(view->part()) : QString();
}

void CsvDesk::exportRows()
{
    LogView *view = m_shown();
    if (!view) {
        emit said(HistoryLines::openAHistory());
        return;
    }
    view->finishEdit();
    const CarRecord &car = m_desk.car.record();
    const auto path = m_files.askWhereTo(CarCsv::fileName(car.vehicle.name, view->part()));
    if (!path)
        return;
    const History &history = view->part() == CarPart::Maintenance ? car.maintenance : car.repairs;
    const QByteArray bytes = view->part() == CarPart::Fuel ? CarCsv::text(car.fuel, car.sheet.unit)
                                                           : CarCsv::text(history, car.sheet.unit);
    emit said(m_files.save(*path, bytes));
}

void CsvDesk::importRows()
{
    m_from = m_shown();
    if (!m_from) {
        emit said(HistoryLines::openAHistory());
        return;
    }
    m_from->finishEdit();
    const auto path = m_files.askWhich();
    if (!path)
        return;
    if (!m_panel) {
        m_panel = new CsvPanel(m_desk);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &CsvPanel::said, this, &CsvDesk::said);
        connect(m_panel, &CsvPanel::taken, this, &CsvDesk::done);
        connect(m_panel, &TaskPanel::left, this, [this] {
            m_desk.views.open(m_from);
            m_from->setFocus();
        });
    }
    if (!m_panel->open(*path, m_from->part()))
        return;
    m_files.keepFolder(*path);
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}
