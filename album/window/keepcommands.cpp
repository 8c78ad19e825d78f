// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/keepcommands.h"

#include "album/model/photoshelf.h"
#include "album/window/albumview.h"
#include "album/window/alikepanel.h"
#include "album/window/cardspanel.h"
#include "album/window/findagainpanel.h"
#include "album/window/keepinglines.h"
#include "album/window/photoexportpanel.h"
#include "album/window/shelfcare.h"
#include "album/window/windowlines.h"
#include "shell/access/gate.h"
#include "shell/core/undosteps.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/householdpictures.h"
#include "shell/program/program.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

KeepCommands::KeepCommands(const AlbumDesk &desk, ShelfCare &care, QString thumbnails, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_care(care)
    , m_thumbnails(std::move(thumbnails))
    , m_cards(desk.shelf)
{
    connect(&m_cards, &CardImport::finished, this, [this] {
        if (!std::exchange(m_isOffering, false))
            return;
        for (const CardImport::Card &card : m_cards.cards()) {
            if (!card.fresh.isEmpty()) {
                emit cardsOffered(KeepingLines::cardOffer(card.name, card.fresh.size()));
                return;
            }
        }
    });
}

void KeepCommands::addCommands(QMenu *pictures)
{
    Commands &commands = m_desk.commands;
    const auto unlessLocked = [this] { return m_desk.shelf.whyLocked(); };
    const auto unlessNone = [this] {
        return m_desk.photos.records().isEmpty() ? AlbumWindowLines::nothingShown() : QString();
    };
    commands.writing(commands.add(
        pictures, u"mPCard"_s, u"&Bring In from a Card..."_s, [this] { openCards(); },
        [this] {
            const QString why = m_desk.shelf.whyLocked();
            return why.isEmpty() && m_care.isTakingIn() ? AlbumWindowLines::takesIn() : why;
        }));
    commands.add(
        pictures, u"mPExport"_s, u"&Export..."_s, [this] { openExport(); }, unlessNone);
    pictures->addSeparator();
    m_findCommand = commands.writing(commands.add(
        pictures, u"mPFind"_s, u"&Find Again..."_s, [this] { openFind(); }, unlessLocked));
    commands.add(
        pictures, u"mPAlike"_s, u"A&like..."_s, [this] { openAlike(); }, unlessNone);
}

template <typename Panel>
void KeepCommands::open(Panel *panel)
{
    m_desk.window.closePreview();
    m_desk.views.open(panel);
    panel->setFocus();
}

/// The pictures of other functions, of which those that the password guards tell once it was given.
FindAgain::Others KeepCommands::others() const
{
    const Program &program = m_desk.program;
    const auto isPassed = [&program](int area) { return program.gate.wasPassed(area); };
    FindAgain::Others others;
    others.missing = HouseholdPictures::missing(program, isPassed);
    others.relink = [&program, isPassed](const QHash<QString, QString> &files) -> std::optional<UndoStep> {
        const auto steps = HouseholdPictures::relink(program, files, isPassed);
        if (!steps)
            return std::nullopt;
        return UndoSteps::joined(KeepingLines::linked(files.size()), *steps);
    };
    return others;
}

QString KeepCommands::nameOfShown() const
{
    return AlbumWindowLines::title(m_desk.photos.shown(), m_desk.photos.shownAlbum(),
                                   m_desk.program.clock.today(), m_desk.program.state.dateStyle);
}

void KeepCommands::openFind()
{
    if (!m_find) {
        m_find = new FindAgainPanel(m_desk.program, m_desk.shelf, &m_desk.window);
        m_desk.views.addPanel(m_find);
        connect(m_find, &FindAgainPanel::said, this, &KeepCommands::linked);
    }
    m_find->start(others());
    open(m_find);
}

/// Several that are chosen are compared, or all that are shown.
void KeepCommands::openAlike()
{
    if (!m_alike) {
        m_alike = new AlikePanel(m_desk.program, m_desk.shelf, m_thumbnails, &m_desk.window);
        m_desk.views.addPanel(m_alike);
        connect(m_alike, &AlikePanel::said, this, &KeepCommands::said);
    }
    const PhotoAlbum *album = m_desk.photos.shownAlbum();
    const bool areSeveral = m_desk.photos.chosen().size() > 1;
    m_alike->start(areSeveral ? m_desk.photos.chosen() : m_desk.photos.records(), album ? album->record : 0);
    open(m_alike);
}

void KeepCommands::openExport()
{
    if (!m_export) {
        m_export = new PhotoExportPanel(m_desk.program, m_desk.shelf, &m_desk.window);
        m_desk.views.addPanel(m_export);
        connect(m_export, &PhotoExportPanel::said, this, &KeepCommands::said);
    }
    const bool areSeveral = m_desk.photos.chosen().size() > 1;
    m_export->start(areSeveral ? AlbumWindowLines::whatIsChosen() : nameOfShown(),
                    areSeveral ? m_desk.photos.chosen() : m_desk.photos.records());
    open(m_export);
}

void KeepCommands::openCards()
{
    if (!m_cardsPanel) {
        m_cardsPanel = new CardsPanel(m_cards);
        m_desk.views.addPanel(m_cardsPanel);
        connect(m_cardsPanel, &CardsPanel::wanted, this, [this](const QStringList &files) {
            const PhotoAlbum *album = m_desk.photos.shownAlbum();
            m_care.takeIn(files, album ? album->record : 0, TakeIn::Copy::ByMonth);
        });
    }
    m_cardsPanel->start();
    open(m_cardsPanel);
}

void KeepCommands::offerCards()
{
    if (m_cards.isRunning() || !m_desk.shelf.whyLocked().isEmpty())
        return;
    m_isOffering = true;
    m_cards.start();
}
