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
#include "storage/saving.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr auto folderKey = "Windows/AutoMaint/csvFolder"_L1;

/// Where files were taken to or brought in from last.
QString lastFolder(const QSettings &store)
{
    return store.value(folderKey, QDir::homePath()).toString();
}

} // namespace

CsvDesk::CsvDesk(const CarDesk &desk, std::function<LogView *()> shown, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_shown(std::move(shown))
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
    const QString folder = lastFolder(m_desk.program.store);
    const auto path = m_desk.program.dialogs.chooseFileToSave(
        &m_desk.window, CsvLines::exportTitle(),
        QDir(folder).filePath(CarCsv::fileName(car.vehicle.name, view->part())), CsvLines::filter());
    if (!path)
        return;
    const QFileInfo file(*path);
    const History &history = view->part() == CarPart::Maintenance ? car.maintenance : car.repairs;
    const QByteArray bytes = view->part() == CarPart::Fuel ? CarCsv::text(car.fuel, car.sheet.unit)
                                                           : CarCsv::text(history, car.sheet.unit);
    const bool isSaved = Saving::replaceFile(DataFolder(file.path()), file.fileName(), bytes);
    if (isSaved)
        m_desk.program.store.setValue(folderKey, file.path());
    emit said(isSaved ? CsvLines::exported(file.fileName()) : CsvLines::notExported(file.fileName()));
}

void CsvDesk::importRows()
{
    m_from = m_shown();
    if (!m_from) {
        emit said(HistoryLines::openAHistory());
        return;
    }
    m_from->finishEdit();
    const auto path = m_desk.program.dialogs.chooseFileToOpen(
        &m_desk.window, CsvLines::importTitle(), lastFolder(m_desk.program.store), CsvLines::filter());
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
    m_desk.program.store.setValue(folderKey, QFileInfo(*path).path());
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}
