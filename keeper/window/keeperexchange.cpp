// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperexchange.h"

#include "keeper/model/keeper.h"
#include "keeper/model/keeperexport.h"
#include "keeper/model/messages.h"
#include "keeper/window/keeperimportpanel.h"
#include "keeper/window/keeperpane.h"
#include "keeper/window/masterdialog.h"
#include "keeper/window/windowlines.h"
#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QDir>
#include <QMenu>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

KeeperExchange::KeeperExchange(const KeeperDesk &desk, KeeperPane &pane, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_pane(pane)
{}

void KeeperExchange::addCommands(QMenu *utilities)
{
    m_import = m_desk.commands.writing(m_desk.commands.add(
        utilities, u"mUImport"_s, u"&Import..."_s, [this] { importFile(); },
        [this] {
            return m_desk.keeper.state() == Keeper::State::Open ? QString() : KeeperWindowLines::isLocked();
        }));
    m_desk.commands.add(
        utilities, u"mUExport"_s, u"E&xport Chosen Entries..."_s, [this] { exportChosen(); },
        [this] { return m_pane.chosen().isEmpty() ? KeeperWindowLines::chooseOne() : QString(); });
}

void KeeperExchange::importFile()
{
    bool isFree = true;
    emit replacing(&isFree);
    if (!isFree)
        return;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    const auto path = m_desk.program.dialogs.chooseFileToOpen(
        &m_desk.window, u"Import"_s, folder, u"CSV, XML (*.csv *.txt *.xml);;All files (*)"_s);
    if (!path || path->isEmpty() || m_desk.keeper.state() != Keeper::State::Open)
        return;
    if (!m_panel) {
        m_panel = new KeeperImportPanel(m_desk);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &ImportPreview::said, this, &KeeperExchange::said);
        connect(m_panel, &ImportPreview::progressed, this, &KeeperExchange::progressed);
        connect(m_panel, &KeeperImportPanel::taken, this, [this](const QString &line) {
            m_pane.showAll();
            emit said(line);
        });
    }
    m_desk.window.closePreview();
    emit said({});
    if (!m_panel->open(*path))
        return;
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void KeeperExchange::forget()
{
    if (m_panel)
        m_panel->forget();
}

void KeeperExchange::exportChosen()
{
    bool isFree = true;
    emit replacing(&isFree);
    const QList<QByteArray> ids = m_pane.chosen();
    if (!isFree || ids.isEmpty())
        return;
    MasterDialog master(m_desk.keeper, KeeperMessages::exportTitle(), &m_desk.window);
    Dialogs &dialogs = m_desk.program.dialogs;
    if (dialogs.run(master) != QDialog::Accepted ||
        dialogs.ask(&m_desk.window, KeeperMessages::exportOpen(int(ids.size()))) != Answer::Yes)
        return;
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const auto path =
        dialogs.chooseFileToSave(&m_desk.window, KeeperMessages::exportTitle(),
                                 documents.filePath(KeeperExport::fileName()), u"CSV (*.csv)"_s);
    if (!path || path->isEmpty() || m_desk.keeper.state() != Keeper::State::Open)
        return; // the box of the system may have stood open behind a lock
    QList<KeeperEntry> entries;
    for (const QByteArray &id : ids) {
        if (const auto entry = m_desk.keeper.entry(id))
            entries.append(*entry);
    }
    const QString shown = QDir::toNativeSeparators(*path);
    const QByteArray bytes = KeeperExport::csv(entries);
    QSaveFile file(*path);
    bool isSaved = file.open(QIODevice::WriteOnly);
    if (isSaved) {
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner); // before a byte is in it
        isSaved = file.write(bytes) == bytes.size() && file.commit();
    }
    emit said(isSaved ? FrameLines::savedAs(shown) : KeeperWindowLines::notExported(shown));
}
