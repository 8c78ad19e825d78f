// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keepertools.h"

#include "keeper/model/keeper.h"
#include "keeper/window/checkuppanel.h"
#include "keeper/window/entrywork.h"
#include "keeper/window/generatorpanel.h"
#include "keeper/window/keeperpane.h"
#include "keeper/window/keepersettingspanel.h"
#include "keeper/window/secretbox.h"
#include "keeper/window/versionspanel.h"
#include "keeper/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QListView>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

KeeperTools::KeeperTools(const KeeperDesk &desk, EntryWork &work, KeeperPane &pane, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_work(work)
    , m_pane(pane)
{
    connect(&work, &EntryWork::makeWanted, this, &KeeperTools::makeFor);
}

QString KeeperTools::whyLocked() const
{
    return m_desk.keeper.state() == Keeper::State::Open ? QString() : KeeperWindowLines::isLocked();
}

void KeeperTools::addVersionsCommand(QMenu *edit)
{
    m_desk.commands.add(
        edit, u"mEVersions"_s, u"E&arlier Versions..."_s, [this] { openVersions(); },
        [this] {
            return m_pane.chosen().size() == 1 && m_work.entry() ? QString() : KeeperWindowLines::chooseOne();
        });
}

void KeeperTools::addViews(QMenu *view)
{
    const auto unless = [this] { return whyLocked(); };
    const auto show = [this](KeeperFilter::What what) {
        m_desk.window.closePreview();
        m_desk.views.goHome();
        m_pane.setFilter({what, {}, {}});
        m_pane.list().setFocus();
    };
    m_desk.commands.add(
        view, u"mVEntries"_s, u"&Entries"_s, [show] { show(KeeperFilter::All); }, unless,
        CommonKeys::views[0]);
    m_desk.commands.add(
        view, u"mVFavourites"_s, u"&Favourites"_s, [show] { show(KeeperFilter::Favourites); }, unless,
        CommonKeys::views[1]);
    m_desk.commands.add(
        view, u"mVTrash"_s, u"&Trash"_s, [show] { show(KeeperFilter::Trash); }, unless, CommonKeys::views[2]);
    m_desk.commands.add(
        view, u"mVCheck"_s, u"&Check-Up"_s, [this] { openCheckup(); }, unless, CommonKeys::views[3]);
}

void KeeperTools::addGenerator(QMenu *utilities)
{
    m_desk.commands.add(
        utilities, u"mUMake"_s, u"Make a &Password..."_s, [this] { openGenerator(nullptr); },
        [this] { return whyLocked(); });
}

void KeeperTools::addSettings(QMenu *options)
{
    m_desk.commands.writing(m_desk.commands.add(
        options, u"mOSet"_s, u"&Settings..."_s, [this] { openSettings(); }, [this] { return whyLocked(); }));
}

void KeeperTools::open(TaskPanel *panel)
{
    m_desk.window.closePreview();
    m_desk.views.open(panel);
    panel->setFocus();
}

void KeeperTools::makeFor(SecretBox *box)
{
    openGenerator(box);
}

void KeeperTools::openGenerator(SecretBox *box)
{
    if (!m_generator) {
        m_generator = new GeneratorPanel(m_desk.program.store);
        m_desk.views.addPanel(m_generator);
        connect(m_generator, &GeneratorPanel::copyWanted, this, [this](const QString &password) {
            emit m_work.copyWanted(KeeperWindowLines::passwordWord(), password);
        });
        connect(m_generator, &GeneratorPanel::taken, this, [this](const QString &password) {
            if (!m_box)
                return;
            m_box->replace(password);
            m_box->focusEnd();
        });
    }
    m_box = box;
    open(m_generator);
    m_generator->start(box != nullptr);
}

void KeeperTools::openVersions()
{
    bool isFree = true;
    emit replacing(&isFree);
    const QByteArray id = m_pane.chosen().value(0);
    if (!isFree || id.isEmpty())
        return;
    if (!m_versions) {
        m_versions = new VersionsPanel(m_desk.program, m_desk.keeper, &m_desk.window);
        m_desk.views.addPanel(m_versions);
        connect(m_versions, &VersionsPanel::chosen, this, &KeeperTools::bringBack);
        connect(m_versions, &VersionsPanel::copyWanted, &m_work, &EntryWork::copyWanted);
    }
    if (m_versions->start(id))
        open(m_versions);
    else
        emit said(KeeperWindowLines::noVersions());
}

/// What was current until now becomes the latest of the earlier ones.
void KeeperTools::bringBack(const KeeperEntry &version)
{
    KeeperEntry entry = version;
    entry.id = m_pane.chosen().value(0);
    if (!m_desk.keeper.save(entry)) {
        emit said(KeeperWindowLines::notSaved());
        return;
    }
    m_work.show({entry.id});
    emit said(KeeperWindowLines::versionIsBack());
}

void KeeperTools::openCheckup()
{
    if (!m_checkup) {
        m_checkup = new CheckupPanel;
        m_desk.views.addPanel(m_checkup);
        connect(m_checkup, &CheckupPanel::chosen, this, [this](const QByteArray &id) {
            bool isFree = true;
            emit replacing(&isFree);
            if (!isFree)
                return;
            m_pane.choose(id);
            m_work.show({id});
        });
    }
    m_checkup->show(m_desk.keeper.entries(), m_desk.program.clock.today(), m_desk.program.state.dateStyle);
    open(m_checkup);
}

void KeeperTools::openSettings()
{
    if (!m_settings) {
        m_settings = new KeeperSettingsPanel(m_desk.keeper);
        m_desk.views.addPanel(m_settings);
        connect(m_settings, &KeeperSettingsPanel::said, this, &KeeperTools::said);
        connect(m_settings, &KeeperSettingsPanel::settingsChanged, this, &KeeperTools::settingsChanged);
    }
    m_settings->start();
    open(m_settings);
}

void KeeperTools::forget()
{
    if (m_generator)
        m_generator->forget();
    if (m_versions)
        m_versions->forget();
    if (m_checkup)
        m_checkup->forget();
    m_box = nullptr;
}
