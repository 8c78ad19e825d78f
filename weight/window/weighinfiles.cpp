// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weighinfiles.h"

#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"
#include "weight/model/weightcsv.h"
#include "weight/model/weightpaperlines.h"
#include "weight/window/openperson.h"
#include "weight/window/personviews.h"
#include "weight/window/weightcsvpanel.h"
#include "weight/window/windowlines.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

WeighInFiles::WeighInFiles(const WeightDesk &desk, PersonViews &views, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_views(views)
    , m_files(desk.program, desk.window, u"Windows/WeightTracker/csvFolder"_s)
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
    const auto path = m_files.askWhereTo(WeightCsv::fileName(sheet.field(WeightSheet::Name)));
    if (path)
        emit said(m_files.save(*path, WeightCsv::text(sheet.weighIns)));
}

void WeighInFiles::importRows()
{
    m_views.finishEdit();
    const auto path = m_files.askWhich();
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
    m_files.keepFolder(*path);
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
