// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weighinfiles.h"

#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"
#include "storage/saving.h"
#include "weight/model/weightcsv.h"
#include "weight/model/weightpaperlines.h"
#include "weight/window/openperson.h"
#include "weight/window/personviews.h"
#include "weight/window/weightcsvpanel.h"
#include "weight/window/windowlines.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr auto folderKey = "Windows/WeightTracker/csvFolder"_L1;
} // namespace

WeighInFiles::WeighInFiles(const WeightDesk &desk, PersonViews &views, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_views(views)
{}

void WeighInFiles::addCommands(QMenu *utilities)
{
    Commands &all = m_desk.commands;
    all.add(
        utilities, u"mUExcel"_s, u"&Export to Excel/Spreadsheet..."_s, [this] { exportRows(); },
        [this] { return whyNoExport(); });
    all.writing(all.add(
        utilities, u"mUBringIn"_s, u"Bring &In a File..."_s, [this] { importRows(); },
        [this] { return m_desk.person.whyLocked(); }));
    connect(utilities, &QMenu::aboutToShow, &all, &Commands::refresh);
}

QString WeighInFiles::whyNoExport() const
{
    if (!m_desk.person.isOpen())
        return TrackerLines::noPersonYet();
    return m_desk.person.sheet().weighIns.isEmpty() ? WeightPaperLines::noWeighIns() : QString();
}

void WeighInFiles::exportRows()
{
    m_views.finishEdit();
    const WeightSheet &sheet = m_desk.person.sheet();
    const QString folder = m_desk.program.store.value(folderKey, QDir::homePath()).toString();
    const auto path = m_desk.program.dialogs.chooseFileToSave(
        &m_desk.window, WeightPaperLines::exportTitle(),
        QDir(folder).filePath(WeightCsv::fileName(sheet.field(WeightSheet::Name))),
        WeightPaperLines::filter());
    if (!path)
        return;
    const QFileInfo file(*path);
    const bool isSaved =
        Saving::replaceFile(DataFolder(file.path()), file.fileName(), WeightCsv::text(sheet.weighIns));
    if (isSaved)
        m_desk.program.store.setValue(folderKey, file.path());
    emit said(isSaved ? WeightPaperLines::exported(file.fileName())
                      : WeightPaperLines::notExported(file.fileName()));
}

void WeighInFiles::importRows()
{
    m_views.finishEdit();
    const auto path = m_desk.program.dialogs.chooseFileToOpen(
        &m_desk.window, WeightPaperLines::importTitle(),
        m_desk.program.store.value(folderKey, QDir::homePath()).toString(), WeightPaperLines::filter());
    if (!path)
        return;
    if (!m_panel) {
        m_panel = new WeightCsvPanel(m_desk.program);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &WeightCsvPanel::said, this, &WeighInFiles::said);
        connect(m_panel, &WeightCsvPanel::taken, this, &WeighInFiles::take);
        connect(m_panel, &TaskPanel::left, this, [this] { m_views.open(PersonViews::WeighIns); });
        connect(&m_desk.person, &OpenPerson::loaded, m_panel, [this] {
            if (m_desk.views.isShown(m_panel)) // it is about the weigh-ins of another person
                m_panel->leave();
        });
    }
    if (!m_panel->open(*path, m_desk.person.sheet().weighIns))
        return;
    m_desk.program.store.setValue(folderKey, QFileInfo(*path).path());
    m_desk.window.closePreview();
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void WeighInFiles::take(const WeightTable &weighIns, const QString &line)
{
    WeightSheet wanted = m_desk.person.sheet();
    wanted.weighIns = weighIns;
    m_desk.person.change(line, wanted);
    emit done(line);
}
