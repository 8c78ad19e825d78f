// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/personpictures.h"

#include "shell/controls/buttonrow.h"
#include "shell/frame/commands.h"
#include "shell/frame/picturepanel.h"
#include "shell/frame/picturetaker.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"
#include "weight/window/openperson.h"
#include "weight/window/personviews.h"
#include "weight/window/thenandnow.h"
#include "weight/window/windowlines.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A line of the file has no width, but a path is one of the system's.
PictureUse pictureUse()
{
    constexpr qsizetype longestPath = 260;
    return {u"Select Weight Tracker Picture"_s, longestPath, TrackerLines::pathNotStorable(),
            TrackerLines::noPictureToDelete()};
}

} // namespace

PersonPictures::PersonPictures(const WeightDesk &desk, PersonViews &views, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_views(views)
    , m_panel(new PicturePanel(desk.program, pictureUse(), PicturePanel::systemDrives, &desk.views))
    , m_comparison(new ThenAndNow(desk.program, &desk.views))
{
    desk.views.addPanel(m_panel);
    desk.views.addPanel(m_comparison);
    connect(m_comparison, &TaskPanel::left, this, [this] { m_views.open(PersonViews::Photos); });
    const auto unless = [this] { return m_desk.person.whyLocked(); };
    Commands &all = m_desk.commands;
    for (const auto photo : {PhotosView::Beginning, PhotosView::Current}) {
        QAction *load = all.writing(all.add(
            nullptr, u"loadPicture"_s + QString::number(photo + 1), u"Load Picture"_s,
            [this, photo] { choose(photo); }, unless));
        const auto *taker =
            new PictureTaker(desk.program, m_views.photos().frame(photo), pictureUse(), *load,
                             {[this] { return m_desk.person.sheet().field(WeightSheet::Name).trimmed(); },
                              [this, photo](const QString &path) { m_views.photos().setPath(photo, path); }});
        connect(taker, &PictureTaker::said, this, &PersonPictures::said);
        m_views.photos().setButton(photo, all.button(load, u"photo"_s + QString::number(photo + 1),
                                                     load->text(), &m_views.photos()));
    }
    connect(m_panel, &PicturePanel::pictureEntered, this, &PersonPictures::enter);
    connect(m_panel, &PicturePanel::pictureDeleted, this, [this] { enter({}); });
    connect(m_panel, &PicturePanel::said, this, &PersonPictures::said);
}

void PersonPictures::choose(PhotosView::Photo photo)
{
    m_views.finishEdit();
    m_photo = photo;
    m_desk.views.open(m_panel);
    m_panel->start(!PhotosView::path(m_desk.person.sheet(), photo).trimmed().isEmpty());
}

void PersonPictures::enter(const QString &path)
{
    m_views.open(PersonViews::Photos);
    m_views.photos().setPath(m_photo, path);
}

void PersonPictures::addCommand(QMenu *view)
{
    Commands &all = m_desk.commands;
    QAction *command = all.add(
        view, u"mVCompare"_s, u"&Then and Now"_s, [this] { compare(); },
        [this] { return whyNoComparison(); });
    ButtonRow &foot = m_views.photos().foot();
    foot.addLeft(all.button(command, u"thenAndNow"_s, command->text(), &foot));
}

void PersonPictures::compare()
{
    m_views.finishEdit();
    m_comparison->compare(m_desk.person.sheet());
    m_desk.views.open(m_comparison);
    m_comparison->setFocus();
}

QString PersonPictures::whyNoComparison() const
{
    const WeightSheet &sheet = m_desk.person.sheet();
    if (!m_desk.person.isOpen())
        return TrackerLines::noPersonYet();
    const bool isEmpty =
        sheet.beginningPicture.trimmed().isEmpty() && sheet.currentPicture.trimmed().isEmpty();
    return isEmpty ? TrackerLines::noPhotoYet() : QString();
}
